#include "text/LocalFile.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace {
QStringView stripSurroundingQuotes(QStringView text)
{
    const bool isQuoted =
        text.size() >= 2 && text.front() == text.back() && (text.front() == u'\'' || text.front() == u'"');
    return isQuoted ? text.sliced(1, text.size() - 2) : text;
}

QString unescapingBackslashes(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' && ++i == text.size())
            break;
        result += text[i];
    }
    return result;
}

std::optional<QString> existing(const QString &path)
{
    return QFileInfo::exists(path) ? std::optional(path) : std::nullopt;
}
} // namespace

std::optional<QString> LocalFile::detect(QStringView text)
{
    QString path = stripSurroundingQuotes(text.trimmed()).toString();
    if (path.startsWith(u"file://", Qt::CaseInsensitive)) {
        const QUrl url(path);
        return url.isValid() && url.isLocalFile() ? existing(url.path(QUrl::FullyDecoded)) : std::nullopt;
    }
    if (path == u"~" || path.startsWith(u"~/"))
        path = QDir::homePath() + path.sliced(1);
    if (!path.startsWith(u'/'))
        return std::nullopt;
    if (const auto found = existing(path))
        return found;
    return existing(unescapingBackslashes(path));
}
