#include "toolkit/Desktop.h"

#include "toolkit/Probe.h"
#include "toolkit/Sound.h"
#include "toolkit/core/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QPalette>
#include <QScreen>
#include <QUrl>

namespace {

#ifdef Q_OS_MACOS
// Qt calls the Command key "Control" there.
constexpr auto controlKey = Qt::MetaModifier;
#else
constexpr auto controlKey = Qt::ControlModifier;
#endif

bool IsHeld(Qt::KeyboardModifier key, bool Probe::*inTest)
{
    const Probe* const probe = Probe::Current();
    return probe ? probe->*inTest : QGuiApplication::queryKeyboardModifiers().testFlag(key);
}

} // namespace

void System::Beep(const Sound* standIn)
{
    if (Probe* const probe = Probe::Current())
        ++probe->Beeps;
    else if (!standIn || QGuiApplication::platformName() == QLatin1String("cocoa") || !standIn->Play())
        QApplication::beep();
}

bool System::GotoURL(StringView url)
{
    if (Probe* const probe = Probe::Current()) {
        probe->Links.emplace_back(url);
        return true;
    }
    // Without a scheme the desktop would take the text for a file, or for an option of its own.
    const QUrl link(ToQt(url));
    return link.isValid() && !link.scheme().isEmpty() && QDesktopServices::openUrl(link);
}

bool Keyboard::AsyncShiftKey() { return IsHeld(Qt::ShiftModifier, &Probe::ShiftKey); }

bool Keyboard::AsyncAltKey() { return IsHeld(Qt::AltModifier, &Probe::AltKey); }

bool Keyboard::AsyncControlKey() { return IsHeld(controlKey, &Probe::ControlKey); }

DesktopDisplay DesktopDisplay::DisplayAt(int index)
{
    if (const Probe* const probe = Probe::Current(); probe && probe->ScreenSize && index == 0)
        return {probe->ScreenSize->first, probe->ScreenSize->second};
    const QScreen* const screen = QGuiApplication::screens().value(index);
    const QSize size = screen ? screen->size() : QSize();
    return {size.width(), size.height()};
}

void Clipboard::SetText(StringView text) { QGuiApplication::clipboard()->setText(ToQt(text)); }

bool OpenItem(const FolderItem& item)
{
    Probe* const probe = Probe::Current();
    if (!probe) return QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(item.Path().c_str())));
    probe->Opened.push_back(item.NativePath());
    return true;
}

bool IsPackage(const FolderItem& item) { return QFileInfo(QFile::decodeName(item.Path().c_str())).isBundle(); }

bool IsDarkMode() { return QGuiApplication::palette().color(QPalette::Window).lightness() < 128; }
