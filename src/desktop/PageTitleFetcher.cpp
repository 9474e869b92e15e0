#include "desktop/PageTitleFetcher.h"

#include "text/WebLink.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>

namespace {
constexpr qsizetype maxPageSize = 1 << 20;
constexpr int maxRedirects = 20;

class DesktopProxyFactory final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        return systemProxyForQuery(query);
    }
};

QNetworkRequest pageRequest(const QUrl &address)
{
    QNetworkRequest request(address);
    // As a browser, because some sites send other programs another page.
    request.setRawHeader("User-Agent", "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 "
                                       "(KHTML, like Gecko) Version/17.4 Safari/605.1.15");
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // Followed here: if redirects are to be checked, Qt requests the second page of a chain twice.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    return request;
}

std::optional<QString> contentType(const QNetworkReply &reply)
{
    if (!reply.hasRawHeader("Content-Type"))
        return std::nullopt;
    return QString::fromLatin1(reply.rawHeader("Content-Type"));
}

bool isPage(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QString type = contentType(reply).value_or(QStringLiteral("text/html")).toLower();
    return status >= 200 && status <= 299
           && (type.contains(u"text/html") || type.contains(u"application/xhtml"));
}

/// Fetches one page, through redirects. Deletes itself after it has reported the title.
class PageTransfer final : public QObject
{
public:
    PageTransfer(QNetworkAccessManager &network, const QUrl &address, std::chrono::milliseconds timeLimit,
        PageTitleFetching::Done done)
        : QObject(&network)
        , m_network(network)
        , m_done(std::move(done))
    {
        // For the whole transfer: Qt's own time limit restarts with every byte received.
        QTimer::singleShot(timeLimit, this, [this] { end(std::nullopt); });
        load(address);
    }

private:
    void load(const QUrl &address)
    {
        if (address.scheme() != u"http" && address.scheme() != u"https") {
            end(std::nullopt);
            return;
        }
        drop();
        m_reply = m_network.get(pageRequest(address));
        m_reply->setParent(this);
        // Qt repeats a request up to three times when the server closes the connection, and has no option not
        // to.
        connect(m_reply, &QNetworkReply::requestSent, this, [this, times = 0]() mutable {
            if (++times > 1)
                end(std::nullopt);
        });
        connect(m_reply, &QNetworkReply::readyRead, this, &PageTransfer::read);
        connect(m_reply, &QNetworkReply::finished, this, &PageTransfer::finish);
    }

    void read()
    {
        if (!isPage(*m_reply)) {
            finish();
            return;
        }
        m_page += m_reply->read(maxPageSize - m_page.size());
        if (m_page.size() == maxPageSize)
            end(title(Charset::Extent::Beginning));
    }

    void finish()
    {
        const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (!target.isEmpty() && m_redirects++ < maxRedirects)
            load(m_reply->url().resolved(target));
        else if (m_reply->error() == QNetworkReply::NoError && isPage(*m_reply))
            end(title(Charset::Extent::Whole));
        else
            end(std::nullopt);
    }

    std::optional<QString> title(Charset::Extent extent) const
    {
        const auto html = WebLink::decodeHTML(m_page, contentType(*m_reply), extent);
        return html ? WebLink::parseTitle(*html) : std::nullopt;
    }

    void drop()
    {
        if (!m_reply)
            return;
        disconnect(m_reply, nullptr, this, nullptr);
        m_reply->deleteLater(); // this may be called by one of its signals
    }

    void end(const std::optional<QString> &title)
    {
        drop();
        deleteLater();
        if (m_done)
            std::exchange(m_done, nullptr)(title);
    }

    QNetworkAccessManager &m_network;
    PageTitleFetching::Done m_done;
    QNetworkReply *m_reply = nullptr;
    int m_redirects = 0;
    QByteArray m_page;
};
} // namespace

PageTitleFetcher::PageTitleFetcher(std::chrono::milliseconds timeLimit)
    : m_timeLimit(timeLimit)
{
}

PageTitleFetcher::~PageTitleFetcher()
{
    m_thread.quit();
    m_thread.wait();
}

void PageTitleFetcher::fetchTitle(const QString &address, QObject *context, Done done)
{
    if (!m_network) {
        m_network = new QNetworkAccessManager;
        m_network->moveToThread(&m_thread);
        connect(&m_thread, &QThread::started, m_network,
            [network = m_network] { network->setProxyFactory(new DesktopProxyFactory); });
        connect(&m_thread, &QThread::finished, m_network, &QObject::deleteLater);
        m_thread.start();
    }
    auto doneHere = [this, context = QPointer(context), done = std::move(done)](
                        const std::optional<QString> &title) {
        QMetaObject::invokeMethod(this, [context, done, title] {
            if (context)
                done(title);
        });
    };
    QMetaObject::invokeMethod(m_network, [=, network = m_network, timeLimit = m_timeLimit] {
        new PageTransfer(*network, QUrl(address), timeLimit, doneHere);
    });
}
