#include "toolkit/URLConnection.h"

#include "toolkit/core/QtText.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <algorithm>
#include <netinet/in.h>
#include <sys/socket.h>
#include <utility>

struct URLConnection::Private {
    QNetworkAccessManager manager;
    QNetworkReply* reply = nullptr;
    QTimer timer;
};

/// Breaks the connections to a server: Qt reads a head without an end in a thread that heeds nothing else.
static void Break(const QUrl& url)
{
    const int port = url.port(url.scheme() == QLatin1String("https") ? 443 : 80);
    const sockaddr none{.sa_family = AF_UNSPEC, .sa_data = {}};
    for (int socket = 0; socket < FD_SETSIZE; ++socket) {
        sockaddr_in6 peer{}; // IPv4 has its port at the same place
        socklen_t size = sizeof peer;
        const bool isOpen = getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &size) == 0;
        if (isOpen && peer.sin6_family != AF_UNIX && ntohs(peer.sin6_port) == port)
            (void)connect(socket, &none, sizeof none);
    }
}

URLConnection::URLConnection() = default;
URLConnection::~URLConnection() { Disconnect(); }

void URLConnection::Send(StringView method, StringView url, int timeout)
{
    Disconnect();
    if (!private_) {
        private_ = std::make_unique<Private>();
        private_->timer.callOnTimeout([this] {
            const Int64 seconds = private_->timer.interval() / 1000;
            Fail(QNetworkReply::TimeoutError, U"No answer within " + ToText(seconds) + U" seconds");
        });
    }
    private_->timer.start(timeout * 1000);
    QNetworkRequest request(QUrl(ToQt(url).trimmed()));
    request.setRawHeader("User-Agent", "Tarnivel");
    QNetworkReply* const reply = private_->manager.sendCustomRequest(request, ToQt(method).toUpper().toLatin1());
    private_->reply = reply;
    reply->setReadBufferSize(2 * MaximumSize);
    if (!AllowCertificateValidation) reply->ignoreSslErrors();
    QObject::connect(reply, &QNetworkReply::readyRead, &private_->timer, [this] { Read(); });
    QObject::connect(reply, &QNetworkReply::finished, &private_->timer, [this] { Read(); });
}

void URLConnection::Disconnect()
{
    if (!private_ || !private_->reply) return;
    private_->timer.stop();
    QNetworkReply* const reply = std::exchange(private_->reply, nullptr);
    reply->disconnect(&private_->timer);
    const bool isRunning = reply->isRunning();
    reply->abort();
    if (isRunning) Break(reply->url());
    reply->deleteLater();
}

void URLConnection::Read()
{
    QNetworkReply& reply = *private_->reply;
    if (!reply.isFinished() && reply.bytesAvailable() <= MaximumSize) return;
    const Bytes content = reply.read(MaximumSize + 1).toStdString();
    const Int64 lines = std::ranges::count(content, '\n') + std::ranges::count(content, '\r');
    if (std::ssize(content) > MaximumSize || lines > MaximumLines)
        return Fail(QNetworkReply::UnknownContentError, U"The answer has more than 8 MiB or 250000 lines");
    const auto status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool saysNo = status >= 400 && reply.error() >= QNetworkReply::ContentAccessDenied;
    if (reply.error() != QNetworkReply::NoError && !saysNo) return Fail(reply.error(), FromQt(reply.errorString()));
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    // Now and then Qt takes a broken connection for the end.
    if (length.isValid() && length.toLongLong() != std::ssize(content))
        return Fail(QNetworkReply::RemoteHostClosedError, U"Connection closed");
    const String url = FromQt(reply.url().toString());
    Disconnect();
    // A copy: what is called may set the event anew.
    if (const auto event = ContentReceived) event(url, status, content);
}

void URLConnection::Fail(int number, const String& message)
{
    Disconnect();
    if (const auto event = Error) event({number, message});
}
