#include "support/Table.h"
#include "text/LocalFile.h"
#include "text/WebLink.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class WebLinkTest final : public QObject
{
    Q_OBJECT

    static QString orNone(const std::optional<QString> &text) { return text.value_or(u"(none)"_s); }

private Q_SLOTS:
    void a_link_is_a_single_web_address()
    {
        const Table<2> table = {
            {" https://a.example/x?y=1#z \n", "https://a.example/x?y=1#z"},
            {"HTTP://A.Example/%7Ex", "HTTP://A.Example/%7Ex"}, // as it was typed
            {"https://a.example/中文?q=值", "https://a.example/%E4%B8%AD%E6%96%87?q=%E5%80%BC"},
            {"https://a.example/a|b", "https://a.example/a%7Cb"},
            {"https://a.example/ x", "(none)"},
            {"https://a.example/\u3000x", "(none)"},
            {"https:///path", "(none)"},
            {"https://", "(none)"},
            {"http://[::1", "(none)"},
            {"ftp://a.example/", "(none)"},
            {"a.example/x", "(none)"},
            {"", "(none)"},
        };
        table.check([](const QString &text) { return orNone(WebLink::detect(text)); });
    }

    void addresses_are_found_in_a_sentence()
    {
        const Table<2> table = {
            {"see https://a.example/x, or (HTTP://b.example).", "https://a.example/x HTTP://b.example"},
            {"看https://a.example/值，谢谢", "https://a.example/值"},
            {"「https://a.example」https://b.example…", "https://a.example https://b.example"},
            {"[it](https://a.example/y_(z))", "https://a.example/y_(z)"},
            {"{https://a.example/[(z)]]).}", "https://a.example/[(z)]"},
            {"https://a.example/?q=1&r=2#top!", "https://a.example/?q=1&r=2#top"},
            {"a\u2028https://a.example\u2028b", "https://a.example"},
            {"https://a.example https://a.example", "https://a.example https://a.example"},
            {"שלום https://a.example/א.", "https://a.example/א"},
            {"xhttps://a.example ftp://a.example https://... www.a.example https:///x", ""},
        };
        table.check([](const QString &text) {
            QStringList found;
            for (const WebLink::Address &each : WebLink::addresses(text)) {
                found.append(text.sliced(each.range.start, each.range.length()));
                if (each.address != WebLink::detect(found.last()))
                    found.append(u"?"_s);
            }
            return found.join(u' ');
        });
    }

    void a_title_is_one_line_of_words()
    {
        const Table<2> table = {
            {"<TITLE lang=en>  A\n  &amp; B </title>", "A & B"},
            {"<title>a</title><title>b</title>", "a"},
            {"<title>x\u00A0&nbsp;y</TITLE>",
                "x  y"}, // the reference is decoded after the spaces are run together
            {"<title> &nbsp; </title>", "(none)"},
            {"<title>a<b>c</title>", "a<b>c"},
            {"<title", "(none)"},
            {"<title>a", "(none)"},
            {"no title", "(none)"},
        };
        table.check([](const QString &text) { return orNone(WebLink::parseTitle(text)); });
    }

    void entities_are_decoded_by_the_rule_of_ten()
    {
        const Table<2> table = {
            {"&#x4e2d;&#25991;&#X1F600;", "中文😀"}, {"&lt;&gt;&quot;&apos;&amp;amp;", "<>\"'&amp;"},
            {"&AMP; &unknown; &copy; & amp; &", "&AMP; &unknown; &copy; & amp; &"},
            {"&#xZZ; &#; &#x; &#-1; &#+65; &# 65;", "&#xZZ; &#; &#x; &#-1; &#+65; &# 65;"},
            {"&#xD800; &#x110000; &#x10FFFF;", "&#xD800; &#x110000; \U0010FFFF"},
            {"&#00000065;", "A"},                                   // ten from "&" to ";"
            {"&#000000065;", "&#000000065;"},                       // eleven
            {"&&amp;;", "&&;"}, {"&#4294967361;", "&#4294967361;"}, // does not wrap round
        };
        table.check(WebLink::decodeEntities);
    }

    void a_page_is_read_in_the_first_encoding_that_fits_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("contentType");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &bytes, const char *contentType,
                             const char *expected) {
            QTest::newRow(name) << bytes << QString::fromUtf8(contentType) << QString::fromUtf8(expected);
        };
        row("as declared", "\x93\xfa\x96\x7b", "text/html; charset=Shift_JIS", "日本");
        row("the first charset counts", "\xe6\x97\xa5", "text/html;charset=nonsense; charset=Shift_JIS",
            "日");
        row("a wrong one is passed over", "\xe6\x97\xa5\xff", "text/html; CHARSET=utf-8", "(none)");
        row("UTF-8 undeclared", "\xe6\x97\xa5", "", "日");
        row("GB 18030 at last", "\xd6\xd0\xce\xc4", "text/html", "中文");
        row("an empty name", "\xd6\xd0\xce\xc4", "text/html; charset=", "中文");
        row("in none of them", "\xff\xff", "", "(none)");
        row("cut off", "\xe6\x97", "text/html; charset=utf-8", "鏃"); // which is a character in GB 18030
        row("nothing", "", "", "");
    }
    void a_page_is_read_in_the_first_encoding_that_fits()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, contentType);
        QTEST(orNone(WebLink::decodeHTML(
                  bytes, contentType.isEmpty() ? std::nullopt : std::optional(contentType))),
            "expected");
    }

    void a_file_must_exist()
    {
        const QTemporaryDir folder;
        const QString plain = folder.filePath(u"a b.txt"_s);
        const QString odd = folder.filePath(u"50% \\ #1.txt"_s);
        for (const QString &path : {plain, odd}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QCOMPARE(LocalFile::detect(u" "_s + plain + u"\n"_s), plain);
        QCOMPARE(LocalFile::detect(u"'"_s + plain + u"'"_s), plain);
        QCOMPARE(LocalFile::detect(QString(plain).replace(u" "_s, u"\\ "_s)), plain);
        QCOMPARE(LocalFile::detect(u"FILE://"_s + QString(plain).replace(u" "_s, u"%20"_s)), plain);
        QCOMPARE(LocalFile::detect(odd), odd); // as it stands before its backslash is taken for a shell's
        QCOMPARE(LocalFile::detect(folder.path()), folder.path());
        QCOMPARE(LocalFile::detect(u"~"_s), QDir::homePath());
        for (const QString &none : {u"/nowhere/at/all"_s, u"a b.txt"_s, u"''"_s, u"'"_s, u""_s,
                 u"~nobody/x"_s, u"file:///nowhere"_s, u"\""_s + plain + u"'"_s})
            QCOMPARE(LocalFile::detect(none), std::nullopt);
    }
};

QTEST_APPLESS_MAIN(WebLinkTest)
#include "tst_weblink.moc"
