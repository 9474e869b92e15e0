#include "desktop/ActivationToken.h"

#include <QString>

namespace {
constexpr const char *variable = "XDG_ACTIVATION_TOKEN";
}

void ActivationToken::set(const QString &token)
{
    if (!token.isEmpty())
        qputenv(variable, token.toUtf8());
}

QString ActivationToken::current()
{
    return qEnvironmentVariable(variable);
}
