#pragma once

#include "text/PageTitleFetching.h"

#include <QObject>
#include <QThread>

#include <chrono>

class QNetworkAccessManager;

/// Reads page titles over the network: one GET for each, through the proxy that the desktop is set to,
/// without cookies, and no more than the first MiB of a page.
///
/// It works in a thread of its own, since finding the proxy, reading certificates and decoding a page can
/// each take longer than a keystroke may wait.
class PageTitleFetcher final : public QObject, public PageTitleFetching
{
    Q_OBJECT

public:
    /// A page that has not come whole (or as far as it is read) in @p timeLimit is given up.
    explicit PageTitleFetcher(std::chrono::milliseconds timeLimit = std::chrono::seconds(10));
    ~PageTitleFetcher() override; ///< gives up what is under way

    void fetchTitle(const QString &address, QObject *context, Done done) override;

private:
    const std::chrono::milliseconds m_timeLimit;
    QNetworkAccessManager *m_network = nullptr; ///< lives in the thread; made when first needed
    QThread m_thread;
};
