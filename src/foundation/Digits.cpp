#include "foundation/Digits.h"

#include <QList>

int Digits::value(QStringView digits)
{
    int value = 0;
    const QList<uint> scalars = digits.toUcs4();
    for (const char32_t digit : scalars)
        value = value * 10 + QChar::digitValue(digit);
    return value;
}
