#include "foundation/Log.h"

#include <QDebug>

void Log::line(QStringView message)
{
    QString oneLine = message.toString();
    for (QChar &character : oneLine) {
        if (character == u'\n' || character == u'\r')
            character = u' ';
    }
    qWarning().noquote().nospace() << "Quillet: " << oneLine;
}
