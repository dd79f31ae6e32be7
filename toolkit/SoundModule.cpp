// What plays sounds lies in a module of its own, which is loaded when the first one is played: the libraries of the
// platform's sound system cost more at the start of the program than all the rest of the layer.
#include <QAudioDevice>
#include <QCoreApplication>
#include <QDeadlineTimer>
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
    // A computer without sound is no fault: what the sound system says about it, in this thread, isn't worth a line.
    static const QThread* const silent = thread;
    static const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (QThread::currentThread() != silent) usual(type, context, message);
        });
    return stage;
}

} // namespace

/// Plays a file, `volume` from 0 to 1.
extern "C" Q_DECL_EXPORT void PlaySound(const QUrl& file, float volume);

void PlaySound(const QUrl& file, float volume)
{
    static QObject* const stage = MakeStage();
    // Sounds that waited for a sound server to answer would come all at once.
    const QDeadlineTimer late(std::chrono::seconds(2));
    QMetaObject::invokeMethod(stage, [file, volume, late] {
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (device.isNull() || late.hasExpired()) return;
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
