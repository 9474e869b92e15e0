#pragma once

#include "text/PageTitleFetching.h"

#include <QObject>
#include <QThread>

#include <chrono>

class QNetworkAccessManager;

/// Fetches page titles over the network: one GET for each, through the system's proxy, without cookies,
/// reading at most 1 MiB of a page.
///
/// It works in a thread of its own, because finding the proxy, reading certificates and decoding a page could
/// each delay a keystroke.
class PageTitleFetcher final : public QObject, public PageTitleFetching
{
    Q_OBJECT

public:
    /// Gives up a page that has not arrived, as far as it is read, within @p timeLimit.
    explicit PageTitleFetcher(std::chrono::milliseconds timeLimit = std::chrono::seconds(10));
    ~PageTitleFetcher() override; ///< gives up the pages being fetched

    void fetchTitle(const QString &address, QObject *context, Done done) override;

private:
    const std::chrono::milliseconds m_timeLimit;
    QNetworkAccessManager *m_network = nullptr; ///< lives in the thread; created when first needed
    QThread m_thread;
};
