#include "toolkit/core/System.h"

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/QtText.h"

#include <QDateTime>
#include <QLocale>
#include <QTranslator>
#include <chrono>
#include <map>
#include <mutex>
#include <ratio>
#include <tuple>

namespace {

/// The translation of a language, kept from its first use on, or null where the program has none.
const QTranslator* Translation(const String& language)
{
    static std::map<String, QTranslator> loaded;
    static std::mutex loading;
    const std::lock_guard lock(loading);
    const auto [found, isNew] = loaded.try_emplace(language);
    QTranslator& translation = found->second;
    const std::optional<FolderItem> resources = isNew ? ResourceFolder() : std::nullopt;
    if (resources)
        std::ignore = translation.load(ToQt(U"tarnivel_" + language), ToQt(resources->NativePath() + U"/translations"));
    return translation.isEmpty() ? nullptr : &translation;
}

/// "de" of "de-AT" and of "de_AT.UTF-8".
String BaseLanguage(StringView language) { return FoldCase(language.substr(0, language.find_first_of(U"-_."))); }

String FindUserLanguage()
{
    const QStringList languages = QLocale::system().uiLanguages();
    for (const QString& language : languages) {
        String base = BaseLanguage(FromQt(language));
        if (base == U"fr" || Translation(base)) return base;
    }
    return U"fr";
}

} // namespace

Int64 System::Ticks()
{
    using Tick = std::chrono::duration<Int64, std::ratio<1, 60>>;
    return std::chrono::duration_cast<Tick>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

String UserLanguage()
{
    static const String language = FindUserLanguage();
    return language;
}

String SystemGetLocalizedString(StringView key, StringView defaultText, StringView language)
{
    const QTranslator* translation = Translation(language.empty() ? UserLanguage() : BaseLanguage(language));
    if (!translation) return String(defaultText);
    const QString text = translation->translate("", ToQt(key).toUtf8().constData());
    return text.isEmpty() ? String(defaultText) : FromQt(text);
}

DateTime DateTime::Now()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}
