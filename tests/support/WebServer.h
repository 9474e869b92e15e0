#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>

/// A local web server that answers each path with exactly the bytes given for it.
class WebServer final : public QTcpServer
{
public:
    enum class Then { Close, Wait, SendMore }; ///< after the bytes; SendMore goes on for ever

    QStringList requests; ///< with their headers

    WebServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        });
    }

    [[nodiscard]] QString address(const QString &path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }
    void answer(const QString &path, const QByteArray &bytes, Then then = Then::Close)
    {
        m_answers[path] = {bytes, then};
    }
    [[nodiscard]] bool hasConnections() const { return !findChildren<QTcpSocket *>().isEmpty(); }

private:
    struct Answer {
        QByteArray bytes;
        Then then = Then::Close;
    };

    void read(QTcpSocket *socket)
    {
        QByteArray request = socket->property("request").toByteArray() + socket->readAll();
        socket->setProperty("request", request);
        if (!request.endsWith("\r\n\r\n"))
            return;
        requests.append(QString::fromUtf8(request));
        const Answer answer = m_answers.value(requests.last().section(u' ', 1, 1));
        socket->write(answer.bytes);
        if (answer.then == Then::Close)
            socket->disconnectFromHost();
        else if (answer.then == Then::SendMore)
            connect(socket, &QTcpSocket::bytesWritten, socket, [socket] { socket->write("and so on "); });
    }

    QHash<QString, Answer> m_answers;
};
