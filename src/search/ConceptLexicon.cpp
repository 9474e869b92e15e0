#include "search/ConceptLexicon.h"

#include <QDir>
#include <QFile>
#include <QSet>

// Static libraries do not register their resources by themselves; the macro must not stand in a namespace.
static void registerConcepts()
{
    Q_INIT_RESOURCE(concepts);
}

namespace {
bool isName(QStringView name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar character) {
        return (character >= u'a' && character <= u'z') || character == u'-';
    });
}
} // namespace

const QStringList &ConceptLexicon::languages()
{
    static const QStringList codes = QStringLiteral("zh en ja ko de fr es da nb sv nl it pt").split(u' ');
    return codes;
}

Result<ConceptLexicon> ConceptLexicon::parse(const QList<Theme> &files)
{
    ConceptLexicon lexicon;
    QSet<QString> names;
    for (const Theme &file : files) {
        const int theme = int(lexicon.themes.size());
        lexicon.themes.append(file.name);
        const QString text = QString::fromUtf8(file.text);
        int number = 0;
        for (const QStringView line : QStringView(text).split(u'\n')) {
            ++number;
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            const auto error = [&](const QString &what) {
                return Failure{QStringLiteral("%1:%2: %3").arg(file.name).arg(number).arg(what)};
            };
            const qsizetype colon = line.indexOf(u':');
            QStringView name = line.first(std::max<qsizetype>(0, colon));
            const bool isVague = name.endsWith(u'?');
            if (isVague)
                name.chop(1);
            if (!isName(name) || names.contains(name.toString()))
                return error(QStringLiteral("no new concept's name"));
            names.insert(name.toString());
            const int meaning = int(lexicon.concepts.size());
            lexicon.concepts.push_back({name.toString(), theme, isVague});
            for (const QStringView part : line.sliced(colon + 1).split(u';')) {
                const QStringView group = part.trimmed();
                const QString language = group.first(std::min<qsizetype>(2, group.size())).toString();
                if (!languages().contains(language) || group.size() < 4 || group[2] != u' ')
                    return error(QStringLiteral("no language and its terms: ") + group.toString());
                for (const QStringView term : group.sliced(3).split(u',')) {
                    if (term.trimmed().isEmpty())
                        return error(QStringLiteral("an empty term"));
                    lexicon.terms.push_back({term.trimmed().toString(), language, meaning});
                }
            }
        }
    }
    return lexicon;
}

ConceptLexicon ConceptLexicon::shipped()
{
    registerConcepts();
    QList<Theme> files;
    const QDir folder(QStringLiteral(":/concepts"));
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            files.append({name.chopped(4), file.readAll()});
    }
    Result<ConceptLexicon> parsed = parse(files);
    if (!parsed)
        qFatal("the concepts cannot be read: %s", qUtf8Printable(parsed.message()));
    return std::move(parsed.value());
}
