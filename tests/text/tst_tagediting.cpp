#include "support/Table.h"
#include "text/TagEditing.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TagEditingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whole_tags_are_replaced_and_removed()
    {
        // as written, with #long for #x, and without #x
        const Table<3> table = {
            {"a #x b", "a #long b", "a b"},
            {"#x b", "#long b", "b"},
            {"a#x b", "a#long b", "a b"},
            {"a #x", "a #long", "a"},
            {"#x#x #x", "#long#long #long", ""},
            {"#xy #X #x@y x", "#xy #X #long@y x", "#xy #X @y x"},
            {"a #x\nb", "a #long\nb", "a b"},
            {"\n#x\n", "\n#long\n", "\n"},
            {"a\u3000#x\u3000b", "a\u3000#long\u3000b", "a\u3000b"},
            {"😀#x😀 # x", "😀#x😀 # x", "😀#x😀 # x"},
            {"no tag  ", "no tag  ", "no tag"},
        };
        table.check([](const QString &text, const QString &replaced) {
            return TagEditing::replacingTag(text, u"x", u"long") == replaced
                       ? TagEditing::removingTag(text, u"x")
                       : TagEditing::replacingTag(text, u"x", u"long");
        });
    }

    void tokens_end_where_a_tag_ends()
    {
        const auto tokens = TagEditing::tokens(u"😀 x#a#b@c ##d #");
        QCOMPARE(
            tokens, (QList<TagEditing::Token>{{{4, 6}, u"#a"_s}, {{6, 8}, u"#b"_s}, {{12, 14}, u"#d"_s}}));
        QCOMPARE(TagEditing::occurrences(u"a", u"#a #ab #a"), 2);
    }

    void a_valid_name_is_not_empty_and_has_no_blank_and_no_mark()
    {
        QVERIFY(TagEditing::isValidName(u"a　😀-1"));
        for (const char16_t *name : {u"", u"a b", u"a\tb", u"#a", u"a@"})
            QVERIFY2(!TagEditing::isValidName(name), qPrintable(QStringView(name).toString()));
    }
};

QTEST_APPLESS_MAIN(TagEditingTest)
#include "tst_tagediting.moc"
