// Answers questions about the engine: one JSON object per line in, one per line out. Needs neither display
// nor bus.
#include "probe/Operations.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdio>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {
QJsonObject error(const QString &message)
{
    return {{u"error"_s, message.simplified()}};
}

QJsonObject answer(const QByteArray &line, const QHash<QString, Operation> &operations)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(line, &problem);
    if (!document.isObject())
        return error(u"not a JSON object: "_s + problem.errorString());
    Arguments arguments(document.object());
    const QString name = arguments.text(u"op"_s);
    const auto operation = operations.constFind(name);
    if (operation == operations.cend())
        return error(u"no such operation: "_s + name);
    const QJsonValue value = (*operation)(arguments);
    return arguments.isGood() ? QJsonObject{{u"ok"_s, value}} : error(arguments.error());
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QHash<QString, Operation> operations = reminderOperations();
    operations.insert(textOperations());
    operations.insert(searchOperations());
    operations.insert(storeOperations());

    std::ios::sync_with_stdio(false);
    for (std::string line; std::getline(std::cin, line);) {
        const QByteArray answered =
            QJsonDocument(answer(QByteArray::fromStdString(line), operations)).toJson(QJsonDocument::Compact);
        std::fwrite(answered.constData(), 1, size_t(answered.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
    return 0;
}
