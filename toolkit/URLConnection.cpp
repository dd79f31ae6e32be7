#include "toolkit/URLConnection.h"

#include "toolkit/HttpAnswer.h"
#include "toolkit/core/QtText.h"

#include <QPointer>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>
#include <chrono>

namespace {

constexpr int maximumRedirections = 20;

bool IsSecure(const QUrl& url) { return url.scheme() == QLatin1String("https"); }

bool IsFetchable(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() && (IsSecure(url) || url.scheme() == QLatin1String("http"));
}

URLConnection::Failure FailureOf(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return URLConnection::Refused;
    case QAbstractSocket::HostNotFoundError:
        return URLConnection::HostNotFound;
    case QAbstractSocket::SslHandshakeFailedError:
        return URLConnection::Untrusted;
    default:
        return URLConnection::NetworkFailed;
    }
}

/// All on one connection, which is closed behind the answer, and unpacked.
QByteArray RequestFor(const QByteArray& method, const QUrl& url)
{
    QByteArray target = url.path(QUrl::FullyEncoded).toLatin1();
    if (target.isEmpty()) target = "/";
    if (url.hasQuery()) target += '?' + url.query(QUrl::FullyEncoded).toLatin1();
    QByteArray request =
        method + ' ' + target +
        " HTTP/1.1\r\nHost: " + url.adjusted(QUrl::RemoveUserInfo).authority(QUrl::FullyEncoded).toLatin1() +
        "\r\nUser-Agent: Tarnivel\r\nAccept: */*\r\nAccept-Encoding: identity\r\nConnection: close\r\n";
    const QString user = url.userName(QUrl::FullyDecoded) + u':' + url.password(QUrl::FullyDecoded);
    if (user.size() > 1) request += "Authorization: Basic " + user.toUtf8().toBase64() + "\r\n";
    return request + "\r\n";
}

} // namespace

/// Qt's own access to the network isn't used: it reads an endless head in a thread that nothing stops, keeps all of it,
/// and takes a piece of no size for the end of the answer.
struct URLConnection::Private {
    explicit Private(URLConnection& connection)
        : owner(connection)
    {
        timer.setSingleShot(true);
    }

    void Fetch(const QUrl& target);
    void Read(bool isEnd);
    void Break(QAbstractSocket::SocketError error);
    void Finish();
    void Redirect();
    void FailLater(const RuntimeException& error, std::chrono::seconds time);
    void Fail(const RuntimeException& error);
    void Drop();
    /// Drops the request under way and what came of it.
    HttpAnswer Clear();

    URLConnection& owner;
    QPointer<QTcpSocket> socket;
    QByteArray method;
    QUrl link;
    HttpAnswer answer;
    int redirections = 0;
    QTimer timer;
};

void URLConnection::Private::Fetch(const QUrl& target)
{
    Drop();
    answer = {};
    link = target;
    auto* const secure = IsSecure(link) ? new QSslSocket : nullptr;
    socket = secure ? secure : new QTcpSocket;
    const auto ask = [this] { socket->write(RequestFor(method, link)); };
    QObject::connect(socket, &QTcpSocket::readyRead, &timer, [this] { Read(false); });
    QObject::connect(socket, &QTcpSocket::errorOccurred, &timer, [this](auto error) { Break(error); });
    if (secure) {
        secure->setPeerVerifyMode(owner.AllowCertificateValidation ? QSslSocket::AutoVerifyPeer
                                                                   : QSslSocket::VerifyNone);
        QObject::connect(secure, &QSslSocket::encrypted, &timer, ask);
        secure->connectToHostEncrypted(link.host(QUrl::FullyEncoded), static_cast<quint16>(link.port(443)));
    } else {
        QObject::connect(socket, &QTcpSocket::connected, &timer, ask);
        socket->connectToHost(link.host(QUrl::FullyEncoded), static_cast<quint16>(link.port(80)));
    }
}

void URLConnection::Private::Read(bool isEnd)
{
    try {
        answer.Take(socket->readAll().toStdString());
        if (isEnd) answer.End();
    } catch (const RuntimeException& error) {
        return Fail(error);
    }
    if (!answer.IsComplete()) return;
    if (answer.Location.empty())
        Finish();
    else
        Redirect();
}

void URLConnection::Private::Break(QAbstractSocket::SocketError error)
{
    if (error == QAbstractSocket::RemoteHostClosedError) return Read(true);
    // A socket may fail while it is still being told to connect.
    const RuntimeException failure(FailureOf(error), FromQt(socket->errorString()));
    Drop();
    FailLater(failure, std::chrono::seconds(0));
}

void URLConnection::Private::Finish()
{
    const String url = FromQt(link.toString());
    const HttpAnswer complete = Clear();
    // A copy: what is called may set the event anew.
    if (const auto event = owner.ContentReceived) event(url, complete.Status, complete.Content);
}

void URLConnection::Private::Redirect()
{
    const QUrl target = link.resolved(QUrl(QString::fromStdString(answer.Location)));
    if (++redirections > maximumRedirections)
        Fail({TooManyRedirections, U"Too many redirects"});
    else if (!IsFetchable(target) || (IsSecure(link) && !IsSecure(target)))
        Fail({NoWebServer, U"Redirected to what is not fetched: " + FromQt(target.toString())});
    else
        Fetch(target);
}

void URLConnection::Private::FailLater(const RuntimeException& error, std::chrono::seconds time)
{
    timer.disconnect();
    // A copy: the failure disconnects what it is called by.
    QObject::connect(&timer, &QTimer::timeout, &timer, [this, error] { Fail(RuntimeException(error)); });
    timer.start(time);
}

void URLConnection::Private::Fail(const RuntimeException& error)
{
    Clear();
    if (const auto event = owner.Error) event(error);
}

void URLConnection::Private::Drop()
{
    if (QTcpSocket* const old = std::exchange(socket, nullptr)) {
        old->disconnect(&timer);
        old->abort();
        old->deleteLater();
    }
}

HttpAnswer URLConnection::Private::Clear()
{
    timer.stop();
    timer.disconnect();
    Drop();
    redirections = 0;
    return std::exchange(answer, {});
}

URLConnection::URLConnection()
    : private_(std::make_unique<Private>(*this))
{
}

URLConnection::~URLConnection() { private_->Clear(); }

void URLConnection::Send(StringView method, StringView url, int timeout)
{
    private_->Clear();
    const QUrl link(ToQt(url).trimmed());
    if (!IsFetchable(link))
        return private_->FailLater({NoWebServer, U"No address of a web server: " + String(url)},
                                   std::chrono::seconds(0));
    private_->FailLater({Late, U"No answer within " + ToText(timeout) + U" seconds"}, std::chrono::seconds(timeout));
    private_->method = ToQt(method).toUpper().toLatin1();
    private_->Fetch(link);
}

void URLConnection::Disconnect() { private_->Clear(); }
