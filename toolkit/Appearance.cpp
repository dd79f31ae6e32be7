#include "toolkit/Appearance.h"

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/QtText.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>
#include <algorithm>

namespace {

constexpr int SmallestFontSize = 9;

QStringList SymbolFamilies()
{
    const std::optional<FolderItem> resources = ResourceFolder();
    const std::optional<FolderItem> file = resources ? resources->Child(U"TarnivelSymbols.ttf") : std::nullopt;
    if (!file) return {};
    return QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(ToQt(file->NativePath())));
}

} // namespace

void SetControlFont(QWidget& content)
{
#ifndef Q_OS_MACOS
    QFont font;
    font.setPixelSize(ControlFontSize);
    content.setFont(font);
#endif
}

void FitFont(QWidget& widget, const QString& caption, int room, int fontSize)
{
    QFont font = widget.font();
    int size = fontSize > 0 ? fontSize : QFontInfo(widget.parentWidget()->font()).pixelSize();
    font.setPixelSize(size);
    while (size > SmallestFontSize && QFontMetrics(font).size(0, caption).width() > room)
        font.setPixelSize(--size);
    widget.setFont(font);
}

void ProvideSymbols(QWidget& widget, StringView caption)
{
    QFont font = widget.font();
    const QFontMetrics metrics(font);
    if (std::ranges::all_of(caption, [&](char32_t symbol) { return metrics.inFontUcs4(symbol); })) return;
    static const QStringList families = SymbolFamilies();
    font.setFamilies(font.families() + families);
    widget.setFont(font);
}

QString Marked(StringView caption) { return ToQt(caption).replace(u'&', QStringLiteral("&&")); }

String Unmarked(QString caption) { return FromQt(caption.replace(QStringLiteral("&&"), QStringLiteral("&"))); }

void SetTextColor(QWidget& widget, QPalette::ColorRole role, ColorGroup color)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Active, role, QColor(color.rgb));
    palette.setColor(QPalette::Inactive, role, QColor(color.rgb));
    widget.setPalette(palette);
}

void SetBlackOnWhite(QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::darkGray);
    widget.setPalette(palette);
}
