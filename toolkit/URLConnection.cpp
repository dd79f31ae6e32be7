#include "toolkit/URLConnection.h"

#include "toolkit/core/QtText.h"

#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <algorithm>
#include <netinet/in.h>
#include <sys/socket.h>
#include <utility>

/// Breaks the connections to a server: Qt reads a head without an end in a thread that heeds nothing else. They are
/// known by the server's port, as Qt tells no reply's address: a display that is reached by that very port over the
/// network would be lost too.
static void Break(const QUrl& url)
{
    const auto port = static_cast<in_port_t>(url.port(url.scheme() == QLatin1String("https") ? 443 : 80));
    for (int socket = 0; socket < FD_SETSIZE; ++socket) {
        sockaddr_in6 peer{}; // IPv4 has its port at the same place
        socklen_t size = sizeof peer;
        const bool isThere = getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &size) == 0;
        if (isThere && peer.sin6_family != AF_UNIX && peer.sin6_port == htons(port)) shutdown(socket, SHUT_RDWR);
    }
}

URLConnection::URLConnection() = default;
URLConnection::~URLConnection() { Disconnect(); }

void URLConnection::Send(StringView method, StringView url, int timeout)
{
    QNetworkRequest request(QUrl(ToQt(url).trimmed()));
    // A method of its own means HTTP: Qt's plain "get" would open files too.
    request.setAttribute(QNetworkRequest::CustomVerbAttribute, ToQt(method).toUpper().toLatin1());
    request.setRawHeader("User-Agent", "Tarnivel");
    // Of a connection that lives on, Qt now and then loses the answer to a redirection.
    request.setRawHeader("Connection", "close");
    request.setRawHeader("Accept-Encoding", "identity"); // of what it unpacks, Qt tells no length
    Ask(request, QDeadlineTimer(std::chrono::seconds(timeout)));
}

void URLConnection::Ask(const QNetworkRequest& request, const QDeadlineTimer& end)
{
    Disconnect();
    if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
    const QByteArray method = request.attribute(QNetworkRequest::CustomVerbAttribute).toByteArray();
    QNetworkReply* const reply = reply_ = manager_->sendCustomRequest(request, method);
    reply->setReadBufferSize(2 * MaximumSize);
    if (!AllowCertificateValidation) reply->ignoreSslErrors();
    const auto read = [this, reply, end] {
        if (reply == reply_ && (reply->isFinished() || reply->bytesAvailable() > MaximumSize)) Read(end);
    };
    QObject::connect(reply, &QNetworkReply::readyRead, reply, read);
    QObject::connect(reply, &QNetworkReply::finished, reply, read);
    QTimer::singleShot(std::chrono::milliseconds(end.remainingTime()), reply, [this, reply] {
        if (reply == reply_) Fail(TooLate, U"No whole answer in time");
    });
}

void URLConnection::Disconnect()
{
    if (!reply_) return;
    QNetworkReply* const reply = std::exchange(reply_, nullptr);
    const bool isRunning = reply->isRunning();
    reply->abort();
    if (isRunning) Break(reply->url());
    reply->deleteLater();
}

void URLConnection::Read(const QDeadlineTimer& end)
{
    QNetworkReply& reply = *reply_;
    QNetworkRequest request = reply.request();
    if (reply.hasRawHeader("Content-Encoding") && request.hasRawHeader("Accept-Encoding")) {
        request.setRawHeader("Accept-Encoding", {}); // packed all the same: once more, for Qt to unpack it
        return Ask(request, end);
    }
    const Bytes content = reply.read(MaximumSize + 1).toStdString();
    const Int64 lines = std::max(std::ranges::count(content, '\n'), std::ranges::count(content, '\r'));
    if (std::ssize(content) > MaximumSize || lines > MaximumLines)
        return Fail(TooLong, U"The answer has more than 8 MiB or 250000 lines");
    const auto status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool saysNo = status >= 400 && reply.error() >= QNetworkReply::ContentAccessDenied;
    if (reply.error() != QNetworkReply::NoError && !saysNo) return Fail(reply.error(), FromQt(reply.errorString()));
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    // Now and then Qt takes a broken connection for the end.
    if (length.isValid() && length.toLongLong() != std::ssize(content)) return Fail(BrokeOff, U"Connection closed");
    const String url = FromQt(reply.url().toString());
    Disconnect();
    // A copy: what is called may set the event anew.
    if (const auto event = ContentReceived) event(url, status, content);
}

void URLConnection::Fail(Int64 number, const String& message)
{
    Disconnect();
    if (const auto event = Error) event({number, message});
}
