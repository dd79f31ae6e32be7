// What plays sounds lies in a module of its own, which is loaded when the first one is played: the libraries of the
// platform's sound system cost more at the start of the program than all the rest of the layer.
#include <QAudioDevice>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QThread>
#include <QUrl>

namespace {

/// An object in a thread of its own: a sound server that accepts and doesn't answer holds up whoever asks it.
QObject* MakeStage()
{
    auto* const thread = new QThread; // it may be held up when the program ends, and is left then
    auto* const stage = new QObject;
    stage->moveToThread(thread);
    QObject::connect(thread, &QThread::finished, stage, &QObject::deleteLater);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [thread] {
        thread->quit();
        if (thread->wait(std::chrono::milliseconds(500))) delete thread;
    });
    thread->start();
    return stage;
}

/// The device that sounds go to at this moment; null where there is none.
QAudioDevice Device()
{
    // A computer without sound is no fault, so that what the sound system says about it isn't worth a line.
    const QtMessageHandler usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QAudioDevice device = QMediaDevices::defaultAudioOutput();
    qInstallMessageHandler(usual);
    return device;
}

} // namespace

/// Plays a file, `volume` from 0 to 1.
extern "C" Q_DECL_EXPORT void PlaySound(const QUrl& file, float volume);

void PlaySound(const QUrl& file, float volume)
{
    static QObject* const stage = MakeStage();
    QMetaObject::invokeMethod(stage, [file, volume] {
        const QAudioDevice device = Device();
        if (device.isNull()) return;
        auto* const effect = new QSoundEffect(device, stage);
        QObject::connect(effect, &QSoundEffect::playingChanged, effect, [effect] {
            if (!effect->isPlaying()) effect->deleteLater();
        });
        QObject::connect(effect, &QSoundEffect::statusChanged, effect, [effect] {
            if (effect->status() == QSoundEffect::Error) effect->deleteLater();
        });
        effect->setVolume(volume);
        effect->setSource(file);
        effect->play();
    });
}
