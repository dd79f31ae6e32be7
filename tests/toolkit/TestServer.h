/// A web server on loopback that sends what a test wants, well formed or not.
#pragma once

#include <QSslServer>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <string>

class TestServer {
public:
    enum class Afterwards { Close, Wait, GoOnForEver };

    /// Every request is answered with `answer`, but one for "/elsewhere" with a page that says so.
    TestServer(std::string answer, Afterwards afterwards)
        : TestServer(std::make_unique<QTcpServer>(), std::move(answer), afterwards, "http")
    {
    }

    /// The same over TLS.
    TestServer(const QSslConfiguration& security, std::string answer)
        : TestServer(MakeSafe(security), std::move(answer), Afterwards::Close, "https")
    {
    }

    [[nodiscard]] std::u32string Url() const
    {
        const auto url =
            QStringLiteral("%1://127.0.0.1:%2/page").arg(QLatin1String(scheme_)).arg(server_->serverPort());
        return url.toStdU32String();
    }
    /// What the last client has sent.
    [[nodiscard]] const QByteArray& Request() const { return request_; }
    [[nodiscard]] int OpenConnections() const { return static_cast<int>(server_->findChildren<QTcpSocket*>().size()); }

private:
    TestServer(std::unique_ptr<QTcpServer> server, std::string answer, Afterwards afterwards, const char* scheme)
        : server_(std::move(server))
        , answer_(std::move(answer))
        , afterwards_(afterwards)
        , scheme_(scheme)
    {
        server_->listen(QHostAddress::LocalHost);
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
            while (auto* const socket = server_->nextPendingConnection())
                Serve(*socket);
        });
    }

    static std::unique_ptr<QTcpServer> MakeSafe(const QSslConfiguration& security)
    {
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(security);
        return server;
    }

    void Serve(QTcpSocket& socket)
    {
        QObject::connect(&socket, &QTcpSocket::disconnected, &socket, &QObject::deleteLater);
        QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this, &socket] {
            request_ += socket.readAll();
            if (!request_.endsWith("\r\n\r\n")) return;
            if (request_.contains(" /elsewhere "))
                socket.write("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nelsewhere");
            else
                socket.write(answer_.data(), static_cast<qint64>(answer_.size()));
            if (afterwards_ == Afterwards::Close) socket.disconnectFromHost();
            if (afterwards_ == Afterwards::GoOnForEver) Drip(socket);
        });
    }

    static void Drip(QTcpSocket& socket)
    {
        auto* const drop = new QTimer(&socket);
        QObject::connect(drop, &QTimer::timeout, &socket, [&socket] { socket.write("."); });
        drop->start(20);
    }

    std::unique_ptr<QTcpServer> server_;
    std::string answer_;
    Afterwards afterwards_;
    const char* scheme_;
    QByteArray request_;
};
