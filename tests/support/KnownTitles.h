#pragma once

#include "text/PageTitleFetching.h"

#include <QPointer>

/// Keeps what it is asked until the test tells the title.
class KnownTitles final : public PageTitleFetching
{
public:
    QStringList asked;

    void fetchTitle(const QString &address, QObject *context, Done done) override
    {
        asked.append(address);
        m_waiting.append([context = QPointer(context), done = std::move(done)](const auto &title) {
            if (context)
                done(title);
        });
    }
    void tell(const std::optional<QString> &title) { m_waiting.takeFirst()(title); }

private:
    QList<Done> m_waiting;
};
