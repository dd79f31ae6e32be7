#include "toolkit/Desktop.h"

#include "toolkit/Probe.h"
#include "toolkit/RevealInFileManager.h"
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

bool IsHeld(Qt::KeyboardModifier key) { return QGuiApplication::queryKeyboardModifiers().testFlag(key); }

QUrl UrlOf(const FolderItem& item) { return QUrl::fromLocalFile(QFile::decodeName(item.Path().c_str())); }

} // namespace

void System::Beep()
{
    if (Probe* const probe = Probe::Current())
        ++probe->Beeps;
    else
        QApplication::beep();
}

void System::GotoURL(StringView url)
{
    if (Probe* const probe = Probe::Current()) {
        probe->Links.emplace_back(url);
        return;
    }
    // Without a scheme the desktop would take the text for a file, or for an option of its own.
    if (const QUrl link(ToQt(url)); link.isValid() && !link.scheme().isEmpty()) QDesktopServices::openUrl(link);
}

void SetMouseCursor(Cursor cursor)
{
    // Qt stacks these pointers; one level is all that is wanted.
    if (QGuiApplication::overrideCursor()) QGuiApplication::restoreOverrideCursor();
    if (cursor == Cursor::FingerPointer) QGuiApplication::setOverrideCursor(Qt::PointingHandCursor);
}

bool Keyboard::AsyncShiftKey()
{
    const Probe* const probe = Probe::Current();
    return probe ? probe->ShiftKey : IsHeld(Qt::ShiftModifier);
}

bool Keyboard::AsyncAltKey()
{
    const Probe* const probe = Probe::Current();
    return probe ? probe->AltKey : IsHeld(Qt::AltModifier);
}

bool Keyboard::AsyncControlKey()
{
    const Probe* const probe = Probe::Current();
    return probe ? probe->ControlKey : IsHeld(controlKey);
}

DesktopDisplay DesktopDisplay::DisplayAt(int index)
{
    if (const Probe* const probe = Probe::Current(); probe && probe->ScreenSize && index == 0)
        return {probe->ScreenSize->first, probe->ScreenSize->second};
    const QScreen* const screen = QGuiApplication::screens().value(index);
    const QSize size = screen ? screen->size() : QSize();
    return {size.width(), size.height()};
}

void Clipboard::SetText(StringView text) { QGuiApplication::clipboard()->setText(ToQt(text)); }

void OpenItem(const FolderItem& item)
{
    if (Probe* const probe = Probe::Current())
        probe->Opened.push_back(item.NativePath());
    else
        QDesktopServices::openUrl(UrlOf(item));
}

void RevealItem(const FolderItem& item)
{
    if (Probe* const probe = Probe::Current())
        probe->Revealed.push_back(item.NativePath());
    else
        RevealInFileManager(UrlOf(item));
}

bool IsPackage(const FolderItem& item) { return QFileInfo(QFile::decodeName(item.Path().c_str())).isBundle(); }

bool IsDarkMode() { return QGuiApplication::palette().color(QPalette::Window).lightness() < 128; }
