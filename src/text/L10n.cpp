#include "text/L10n.h"

#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <array>
#include <memory>

namespace {
/// The languages with a file under translations/.
constexpr std::array offeredLanguages{u"zh-Hans"};

QString preferredLanguage()
{
    const QStringList wanted = QLocale::system().uiLanguages(); // "zh-Hans-CN", "zh-CN", "zh" ...
    for (const QString &language : wanted) {
        for (const char16_t *offered : offeredLanguages) {
            if (language.startsWith(QStringView(offered)))
                return QString::fromUtf16(offered);
        }
    }
    return QStringLiteral("zh-Hans");
}

/// Null if the language is not offered.
const QTranslator *translator(const QString &languageCode)
{
    static QHash<QString, std::shared_ptr<QTranslator>> translators;
    auto found = translators.constFind(languageCode);
    if (found == translators.cend()) {
        auto loaded = std::make_shared<QTranslator>();
        if (!loaded->load(QStringLiteral(":/translations/quillet_%1.qm").arg(languageCode)))
            loaded.reset();
        found = translators.insert(languageCode, loaded);
    }
    return found->get();
}
} // namespace

const QString &L10n::currentLanguage()
{
    static const QString language = preferredLanguage();
    return language;
}

QByteArray L10n::locale(QStringView languageCode)
{
    struct Rule {
        QStringView prefix;
        const char *locale;
    };
    // The first matching prefix counts, so "zh-Hant" must precede "zh".
    static constexpr Rule rules[] = {
        {u"zh-Hant", "zh_Hant"},
        {u"zh", "zh_CN"},
        {u"ja", "ja_JP"},
        {u"ko", "ko_KR"},
        {u"de", "de_DE"},
        {u"fr", "fr_FR"},
        {u"es", "es_ES"},
        {u"da", "da_DK"},
        {u"nb", "nb_NO"},
        {u"no", "nb_NO"},
        {u"sv", "sv_SE"},
        {u"nl", "nl_NL"},
        {u"it", "it_IT"},
        {u"pt", "pt_PT"},
    };
    for (const Rule &rule : rules) {
        if (languageCode.startsWith(rule.prefix))
            return rule.locale;
    }
    return "en_US";
}

QString L10n::text(const char *key, const QString &languageCode)
{
    const QTranslator *table = translator(languageCode);
    const QString translated = table ? table->translate("Quillet", key) : QString();
    return translated.isEmpty() ? QString::fromUtf8(key) : translated;
}

QString L10n::text(const char *key, const QStringList &arguments, const QString &languageCode)
{
    // Not one after the other in the text: an argument may itself contain "%@".
    const QStringList pieces = text(key, languageCode).split(QLatin1String("%@"));
    Q_ASSERT(pieces.size() == arguments.size() + 1);
    QString filled = pieces.front();
    for (qsizetype i = 0; i < arguments.size(); ++i)
        filled += arguments[i] + pieces[i + 1];
    return filled;
}
