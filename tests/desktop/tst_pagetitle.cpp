#include "desktop/PageTitleFetcher.h"
#include "support/Table.h"
#include "support/WebServer.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class PageTitleTest final : public QObject
{
    Q_OBJECT

    static QByteArray response(const QByteArray &head, const QByteArray &body)
    {
        return "HTTP/1.1 " + head + "\r\n\r\n" + body;
    }
    static QByteArray page(const QByteArray &body)
    {
        return response("200 OK\r\nContent-Type: text/html", body);
    }

    /// The title, or "(none)"; "never" if there was no answer within five seconds.
    static QString fetched(PageTitleFetcher &fetcher, const QString &address)
    {
        QString answer = u"never"_s;
        QObject context;
        fetcher.fetchTitle(
            address, &context, [&](const auto &title) { answer = title.value_or(u"(none)"_s); });
        (void)QTest::qWaitFor([&] { return answer != u"never"_s; });
        return answer;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *proxy : {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY"})
            qunsetenv(proxy);
    }

    void only_a_page_has_a_title()
    {
        const Table<2> table = {
            {"200 OK\r\nContent-Type: text/html", "买 & 卖"},
            {"200 OK", "买 & 卖"},
            {"200 OK\r\ncontent-type: APPLICATION/XHTML+XML", "买 & 卖"},
            {"299 Odd\r\nContent-Type: text/html", "买 & 卖"},
            {"200 OK\r\nContent-Type: application/json", "(none)"},
            {"200 OK\r\nContent-Type: text/html\r\nContent-Length: 99", "(none)"}, // cut off
            {"404 Not Found\r\nContent-Type: text/html", "(none)"},
            {"302 Found", "(none)"},
            {"302 Found\r\nLocation: file:///etc/hostname", "(none)"},
            {"301 Moved\r\nLocation: data:text/html,<title>x</title>", "(none)"},
            {"302 Found\r\nLocation: /page", "(none), asked 21 times"},
        };
        table.check([](const QString &head) {
            WebServer server;
            server.answer(u"/page"_s, response(head.toUtf8(), "<title>买 &amp; 卖</title>"));
            PageTitleFetcher fetcher(4s);
            const QString title = fetched(fetcher, server.address(u"/page"_s));
            const qsizetype asked = server.requests.size();
            return asked == 1 ? title : u"%1, asked %2 times"_s.arg(title).arg(asked);
        });
    }

    void a_server_that_sends_no_page_is_not_asked_again()
    {
        for (const QByteArray &response : {QByteArray(), QByteArray("220 mail.example ESMTP\r\n")}) {
            WebServer server;
            server.answer(u"/page"_s, response);
            PageTitleFetcher fetcher(4s);
            QCOMPARE(fetched(fetcher, server.address(u"/page"_s)), u"(none)"_s);
            QTRY_VERIFY(!server.hasConnections());
            QCOMPARE_LE(server.requests.size(), 2); // the second is on its way before Qt reports the first
        }
    }

    void a_page_is_asked_for_once_and_as_a_browser_does()
    {
        WebServer server;
        server.answer(u"/old"_s, response("307 Moved\r\nSet-Cookie: a=b\r\nLocation: /%E6%96%B0?q=1", ""));
        server.answer(u"/%E6%96%B0?q=1"_s, response("200 OK\r\nSet-Cookie: c=d", "<title>新</title>"));
        PageTitleFetcher fetcher;
        QCOMPARE(fetched(fetcher, server.address(u"/old#part"_s)), u"新"_s);
        QCOMPARE(fetched(fetcher, server.address(u"/old"_s)), u"新"_s);
        QCOMPARE(server.requests.size(), 4); // two pages, each behind a redirect
        for (const QString &request : std::as_const(server.requests)) {
            QVERIFY(request.startsWith(u"GET "_s));
            QVERIFY(request.contains(u"\r\nUser-Agent: Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) "
                                     u"AppleWebKit/605.1.15 (KHTML, "
                                     "like Gecko) Version/17.4 Safari/605.1.15\r\n"_s,
                Qt::CaseInsensitive)); // Qt 6.8 writes "user-agent"
            QVERIFY(!request.contains(u"Cookie"_s, Qt::CaseInsensitive));
        }
    }

    void a_page_is_read_as_far_as_a_mebibyte()
    {
        WebServer server;
        // 1 MiB ends within a character.
        const QByteArray filling = QByteArray("日").repeated((1 << 20) / 3);
        server.answer(u"/early"_s, page("<title>早</title>" + filling + filling), WebServer::Then::SendMore);
        server.answer(u"/late"_s, page(filling + "<title>晚</title>"), WebServer::Then::SendMore);
        PageTitleFetcher fetcher(4s);
        QCOMPARE(fetched(fetcher, server.address(u"/early"_s)), u"早"_s);
        QCOMPARE(fetched(fetcher, server.address(u"/late"_s)), u"(none)"_s);
        QTRY_VERIFY(!server.hasConnections());
    }

    void a_page_that_does_not_come_is_given_up()
    {
        using Then = WebServer::Then;
        for (const auto &[response, then] : {std::pair(QByteArray(), Then::Wait), {page(""), Then::Wait},
                 {page("<title>x</title>"), Then::Wait}, {"HTTP/1.1 200 OK\r\nX-Long: ", Then::SendMore}}) {
            WebServer server;
            server.answer(u"/slow"_s, response, then);
            PageTitleFetcher fetcher(300ms);
            QCOMPARE(fetched(fetcher, server.address(u"/slow"_s)), u"(none)"_s);
            QTRY_VERIFY(!server.hasConnections());
        }
    }

    void a_title_is_not_reported_to_an_object_that_is_gone()
    {
        WebServer server;
        server.answer(u"/page"_s, page("<title>x</title>"));
        server.answer(u"/slow"_s, {}, WebServer::Then::Wait);
        QStringList titles;
        const auto report = [&](const auto &title) { titles.append(title.value_or(u"(none)"_s)); };
        QObject stays;
        {
            PageTitleFetcher fetcher;
            auto goes = std::make_unique<QObject>();
            fetcher.fetchTitle(server.address(u"/page"_s), goes.get(), report);
            goes.reset();
            fetcher.fetchTitle(server.address(u"/page"_s), &stays, report);
            QTRY_COMPARE(titles, QStringList{u"x"_s});
            fetcher.fetchTitle(server.address(u"/slow"_s), &stays, report);
            QTRY_VERIFY(server.requests.last().contains(u"/slow"_s));
        }
        QTRY_VERIFY(!server.hasConnections());
        QCOMPARE(titles, QStringList{u"x"_s});
    }
};

QTEST_GUILESS_MAIN(PageTitleTest)
#include "tst_pagetitle.moc"
