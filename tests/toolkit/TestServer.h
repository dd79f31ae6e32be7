/// A web server on loopback that sends what a test wants, well formed or not.
#pragma once

#include <QSslServer>
#include <QTcpSocket>
#include <QTimer>
#include <memory>
#include <string>

class TestServer {
public:
    enum Afterwards { Close, Wait, GoOnForEver };

    /// Every request is answered with `answer`, but one for "/elsewhere" with a page that says so. Over TLS where there
    /// is a `security`.
    TestServer(std::string answer, Afterwards afterwards, const QSslConfiguration* security = nullptr)
        : server_(security ? std::make_unique<QSslServer>() : std::make_unique<QTcpServer>())
        , answer_(std::move(answer))
        , afterwards_(afterwards)
    {
        if (security) static_cast<QSslServer&>(*server_).setSslConfiguration(*security);
        server_->listen(QHostAddress::Any);
        Url = QStringLiteral("%1://127.0.0.1:%2/page")
                  .arg(QLatin1String(security ? "https" : "http"))
                  .arg(server_->serverPort())
                  .toStdU32String();
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
            while (auto* const socket = server_->nextPendingConnection())
                QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { Serve(*socket); });
        });
    }

    std::u32string Url;
    /// All that the clients have sent.
    mutable QByteArray Requests;

private:
    void Serve(QTcpSocket& socket)
    {
        Requests += socket.readAll();
        if (!Requests.endsWith("\r\n\r\n")) return;
        const bool isElsewhere = Requests.contains(" /elsewhere ");
        socket.write(isElsewhere ? "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nelsewhere"
                                 : QByteArray::fromStdString(answer_));
        if (afterwards_ == Close) socket.disconnectFromHost();
        if (afterwards_ != GoOnForEver) return;
        auto* const drop = new QTimer(&socket);
        QObject::connect(drop, &QTimer::timeout, &socket, [&socket] { socket.write("."); });
        drop->start(20);
    }

    std::unique_ptr<QTcpServer> server_;
    std::string answer_;
    Afterwards afterwards_;
};
