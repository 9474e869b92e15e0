#pragma once

#include <QString>

#include <functional>
#include <optional>

class QObject;

/// Fetches the titles of web pages.
class PageTitleFetching
{
public:
    using Done = std::function<void(const std::optional<QString> &title)>;

    virtual ~PageTitleFetching() = default;

    /// Returns at once. @p done is called later and once, in the caller's thread, with the title of the page
    /// at this http or https address, or with nothing; not at all when @p context or the fetcher is gone by
    /// then.
    virtual void fetchTitle(const QString &address, QObject *context, Done done) = 0;
};
