#include "toolkit/SoundVoice.h"

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>
#include <memory>

namespace {

/// Whether there is a sound device at this moment.
bool CanBeHeard()
{
    // A computer without sound is no fault, so that what the sound system says about it isn't worth a line.
    const QtMessageHandler usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const bool isThere = !QMediaDevices::defaultAudioOutput().isNull();
    qInstallMessageHandler(usual);
    return isThere;
}

class EffectVoice final : public SoundVoice {
public:
    explicit EffectVoice(const char* path)
        : file_(QUrl::fromLocalFile(QFile::decodeName(path)))
    {
    }

    void Play(int volume) override
    {
        if (!CanBeHeard()) {
            effect_.reset();
            return;
        }
        if (!effect_) {
            effect_ = std::make_unique<QSoundEffect>();
            effect_->setSource(file_);
        }
        SetVolume(volume);
        effect_->play();
    }

    void SetVolume(int percent) override
    {
        constexpr float full = 100;
        if (effect_) effect_->setVolume(static_cast<float>(percent) / full);
    }

    [[nodiscard]] bool IsPlaying() const override { return effect_ && effect_->isPlaying(); }

private:
    QUrl file_;
    std::unique_ptr<QSoundEffect> effect_;
};

} // namespace

extern "C" Q_DECL_EXPORT SoundVoice* MakeSoundVoice(const char* path);

SoundVoice* MakeSoundVoice(const char* path) { return new EffectVoice(path); }
