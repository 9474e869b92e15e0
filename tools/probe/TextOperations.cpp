#include "probe/Operations.h"

#include "model/NoteCoding.h"
#include "model/NoteFileCodec.h"
#include "model/NoteMarkdown.h"
#include "text/L10n.h"
#include "text/LocalFile.h"
#include "text/NoteFormatting.h"
#include "text/NoteHighlighting.h"
#include "text/TagCompletion.h"
#include "text/TagEditing.h"
#include "text/WebLink.h"

using namespace Qt::StringLiterals;

namespace {
QJsonValue segments(Arguments &arguments)
{
    constexpr const char *kinds[] = {"plain", "number", "tag", "match"};
    QJsonArray answers;
    const QString text = arguments.text(u"text"_s);
    for (const auto &segment :
        NoteHighlighting::segments(text, arguments.optionalText(u"query"_s).value_or(QString()))) {
        answers.append(
            QJsonObject{{u"kind"_s, QLatin1String(kinds[int(segment.kind)])}, {u"text"_s, segment.text}});
    }
    return answers;
}

QJsonValue tokens(Arguments &arguments)
{
    QJsonArray answers;
    for (const TagEditing::Token &token : TagEditing::tokens(arguments.text(u"text"_s))) {
        answers.append(QJsonObject{{u"location"_s, token.range.start}, {u"length"_s, token.range.length()},
            {u"text"_s, token.text}});
    }
    return answers;
}

qsizetype caret(Arguments &arguments, const QString &text)
{
    const qsizetype cursor = arguments.integer(u"cursor"_s);
    if (cursor >= 0 && cursor <= text.size())
        return cursor;
    arguments.fail(u"\"cursor\" must lie within the text"_s);
    return 0;
}

QJsonValue activeToken(Arguments &arguments)
{
    const QString text = arguments.text(u"text"_s);
    const auto token = TagCompletion::activeToken(text, caret(arguments, text));
    if (!token)
        return {};
    return QJsonObject{{u"location"_s, token->range.start}, {u"length"_s, token->range.length()},
        {u"prefix"_s, token->prefix}};
}

QJsonValue completionStep(TagCompletionState &state, Arguments &step)
{
    const QString name = step.text(u"do"_s);
    QJsonValue result;
    if (name == u"update") {
        const QString draft = step.text(u"draft"_s);
        const QStringList known = step.texts(u"tags"_s);
        const qsizetype cursor = caret(step, draft);
        if (step.isGood())
            state.update(draft, cursor, known);
    } else if (name == u"moveSelection") {
        state.moveSelection(int(step.integer(u"by"_s)));
    } else if (name == u"apply") {
        const QString candidate = step.text(u"candidate"_s);
        if (const auto applied = state.apply(candidate, step.text(u"text"_s)))
            result = QJsonObject{{u"text"_s, applied->text}, {u"cursorUTF16"_s, applied->cursor}};
    } else if (name == u"dismiss") {
        state.dismiss();
    } else {
        step.fail(u"no such step: "_s + name);
    }
    return QJsonObject{{u"candidates"_s, Answer::of(state.candidates())}, {u"selection"_s, state.selection()},
        {u"isActive"_s, state.isActive()}, {u"selectedCandidate"_s, Answer::of(state.selectedCandidate())},
        {u"result"_s, result}};
}

QJsonValue completion(Arguments &arguments)
{
    TagCompletionState state;
    QJsonArray answers;
    for (const QJsonValue &element : arguments.array(u"steps"_s)) {
        Arguments step(element.toObject(), arguments);
        answers.append(completionStep(state, step));
        if (!step.isGood()) {
            arguments.fail(step.error());
            break;
        }
    }
    return answers;
}

QJsonValue decodeHTML(Arguments &arguments)
{
    const QByteArray bytes = arguments.base64(u"base64"_s);
    return Answer::of(WebLink::decodeHTML(bytes, arguments.optionalText(u"contentType"_s)));
}

QJsonValue markdownExport(Arguments &arguments)
{
    return NoteMarkdown::exported(arguments.notes(), arguments.calendar());
}

QJsonValue markdownParse(Arguments &arguments)
{
    const QString text = arguments.text(u"text"_s);
    return Answer::of(NoteMarkdown::parse(text, arguments.instant(u"fallbackDay"_s), arguments.calendar()));
}

QJsonValue encodeNotes(Arguments &arguments)
{
    return QString::fromUtf8(noteEncoder::encode(arguments.notes()));
}

QJsonValue answerOrFail(const Result<QList<Note>> &notes, Arguments &arguments)
{
    if (notes)
        return Answer::of(notes.value());
    arguments.fail(notes.message());
    return {};
}

QJsonValue decodeNotes(Arguments &arguments)
{
    return answerOrFail(noteDecoder::decodeNotes(arguments.base64(u"base64"_s)), arguments);
}

QJsonValue decodeImport(Arguments &arguments)
{
    const QByteArray bytes = arguments.base64(u"base64"_s);
    return answerOrFail(NoteFileCodec::decode(bytes, arguments.now(), arguments.calendar()), arguments);
}

QString locale(const QString &code)
{
    return QString::fromLatin1(L10n::locale(code));
}

QJsonValue dayTitle(Arguments &arguments)
{
    return NoteFormatting::dayTitle(
        arguments.instant(u"date"_s), arguments.now(), arguments.calendar(), arguments.uiLanguage());
}

QJsonValue timeString(Arguments &arguments)
{
    return NoteFormatting::timeString(
        arguments.instant(u"date"_s), arguments.calendar(), arguments.uiLanguage());
}

QJsonValue reminderTimeString(Arguments &arguments)
{
    return NoteFormatting::reminderTimeString(
        arguments.instant(u"date"_s), arguments.now(), arguments.calendar(), arguments.uiLanguage());
}
} // namespace

QHash<QString, Operation> textOperations()
{
    return {
        {u"segments"_s, segments},
        {u"tags"_s, onTexts(NoteHighlighting::tags, u"text"_s)},
        {u"tokens"_s, tokens},
        {u"occurrences"_s, onTexts(TagEditing::occurrences, u"tag"_s, u"text"_s)},
        {u"replacingTag"_s, onTexts(TagEditing::replacingTag, u"text"_s, u"from"_s, u"to"_s)},
        {u"removingTag"_s, onTexts(TagEditing::removingTag, u"text"_s, u"tag"_s)},
        {u"activeToken"_s, activeToken},
        {u"completion"_s, completion},
        {u"webLink"_s, onTexts(WebLink::detect, u"text"_s)},
        {u"localFile"_s, onTexts(LocalFile::detect, u"text"_s)},
        {u"decodeHTML"_s, decodeHTML},
        {u"parseTitle"_s, onTexts(WebLink::parseTitle, u"html"_s)},
        {u"decodeEntities"_s, onTexts(WebLink::decodeEntities, u"text"_s)},
        {u"markdownExport"_s, markdownExport},
        {u"markdownParse"_s, markdownParse},
        {u"encodeNotes"_s, encodeNotes},
        {u"decodeNotes"_s, decodeNotes},
        {u"decodeImport"_s, decodeImport},
        {u"locale"_s, onTexts(locale, u"code"_s)},
        {u"dayTitle"_s, dayTitle},
        {u"timeString"_s, timeString},
        {u"reminderTimeString"_s, reminderTimeString},
    };
}
