#include "toolkit/SoundVoice.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QFile>
#include <QMediaDevices>
#include <memory>

namespace {

/// The device that sounds go to at this moment; null where there is none.
QAudioDevice Device()
{
    // A computer without sound is no fault, so that what the sound system says about it isn't worth a line.
    const QtMessageHandler usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QAudioDevice device = QMediaDevices::defaultAudioOutput();
    qInstallMessageHandler(usual);
    return device;
}

QAudioFormat FormatOf(const WavFormat& wav)
{
    QAudioFormat format;
    format.setSampleFormat(QAudioFormat::Int16);
    format.setChannelCount(wav.Channels);
    format.setSampleRate(wav.Rate);
    return format;
}

/// The samples of the file and a second of silence. Qt ends a sound when its last sample has been handed over, not when
/// it has been heard, and would so swallow the end of each and the whole of the shortest.
QByteArray ReadSamples(const char* path, const WavFormat& wav)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly) || !file.seek(wav.Offset)) return {};
    const qsizetype samplesASecond = qsizetype{wav.Rate} * wav.Channels;
    return file.read(wav.Length) + QByteArray(samplesASecond * WavFormat::BytesPerSample, '\0');
}

class SinkVoice final : public SoundVoice {
public:
    SinkVoice(const char* path, const WavFormat& wav)
        : format_(FormatOf(wav))
        , samples_(ReadSamples(path, wav))
        , source_(&samples_)
    {
        source_.open(QIODevice::ReadOnly);
    }

    void Play(int volume) override
    {
        sink_.reset();
        const QAudioDevice device = Device();
        if (device.isNull()) return;
        sink_ = std::make_unique<QAudioSink>(device, format_);
        // The end is told from within the sink's own work.
        QObject::connect(
            sink_.get(), &QAudioSink::stateChanged, sink_.get(),
            [this](QAudio::State state) {
                if (state == QAudio::IdleState) sink_->stop();
            },
            Qt::QueuedConnection);
        SetVolume(volume);
        source_.seek(0);
        sink_->start(&source_);
    }

    void SetVolume(int percent) override
    {
        constexpr qreal full = 100;
        if (sink_) sink_->setVolume(percent / full);
    }

    [[nodiscard]] bool IsPlaying() const override { return sink_ && sink_->state() == QAudio::ActiveState; }

private:
    QAudioFormat format_;
    QByteArray samples_;
    QBuffer source_;
    std::unique_ptr<QAudioSink> sink_;
};

} // namespace

extern "C" Q_DECL_EXPORT SoundVoice* MakeSoundVoice(const char* path, const WavFormat& format);

SoundVoice* MakeSoundVoice(const char* path, const WavFormat& format) { return new SinkVoice(path, format); }
