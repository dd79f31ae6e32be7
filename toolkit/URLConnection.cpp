#include "toolkit/URLConnection.h"

#include "toolkit/core/QtText.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QSslConfiguration>
#include <QTimer>
#include <chrono>

namespace {

bool IsFetchable(const QUrl& url)
{
    const QString scheme = url.scheme();
    return url.isValid() && !url.host().isEmpty() &&
           (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

int StatusOf(const QNetworkReply& reply) { return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(); }

/// Whether the server has answered in full. Statuses like 404 or 500 are errors to Qt and answers to us; what Qt
/// numbers lower than those is a connection that failed.
bool IsAnswer(const QNetworkReply& reply)
{
    const auto error = reply.error();
    if (error == QNetworkReply::NoError) return true;
    return StatusOf(reply) > 0 && error >= QNetworkReply::ContentAccessDenied &&
           error != QNetworkReply::ProtocolUnknownError && error != QNetworkReply::ProtocolFailure;
}

/// Whether fewer bytes came than the server has announced. Qt 6.4 takes that for a complete answer when the end of the
/// connection comes together with its last bytes.
bool IsCutOff(const QNetworkReply& reply, qsizetype received)
{
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    return announced.isValid() && announced.toLongLong() > received;
}

} // namespace

struct URLConnection::Private {
    explicit Private(URLConnection& connection)
        : owner(connection)
    {
        timer.setSingleShot(true);
    }

    void Start(QNetworkReply* request);
    void Collect();
    void Finish();
    void FailLater(int number, QString words);
    void Fail(int number, const QString& words);
    /// Drops the request under way and what came of it.
    QByteArray Clear();

    URLConnection& owner;
    // Made at the first request: it costs a thread and some memory.
    std::unique_ptr<QNetworkAccessManager> manager;
    QPointer<QNetworkReply> reply;
    QByteArray received;
    QTimer timer;
};

void URLConnection::Private::Start(QNetworkReply* request)
{
    reply = request;
    QObject::connect(request, &QNetworkReply::readyRead, &timer, [this] { Collect(); });
    QObject::connect(request, &QNetworkReply::finished, &timer, [this] { Finish(); });
}

void URLConnection::Private::Collect()
{
    received += reply->readAll();
    if (received.size() > MaximumSize)
        Fail(QNetworkReply::UnknownContentError, QStringLiteral("The answer is longer than %1 bytes").arg(MaximumSize));
}

void URLConnection::Private::Finish()
{
    const QPointer<QNetworkReply> finished = reply;
    Collect();
    // The rest was too much, and the request has failed by it.
    if (reply != finished) return;
    if (!IsAnswer(*reply)) {
        Fail(reply->error(), reply->errorString());
        return;
    }
    if (IsCutOff(*reply, received.size())) {
        Fail(QNetworkReply::RemoteHostClosedError, QStringLiteral("The connection ended within the answer"));
        return;
    }
    const String url = FromQt(reply->url().toString());
    const Int64 status = StatusOf(*reply);
    const QByteArray content = Clear();
    // A copy: what is called may set the event anew.
    if (const auto event = owner.ContentReceived) event(url, status, content.toStdString());
}

void URLConnection::Private::FailLater(int number, QString words)
{
    QObject::connect(&timer, &QTimer::timeout, &timer,
                     [this, number, words = std::move(words)] { Fail(number, words); });
}

void URLConnection::Private::Fail(int number, const QString& words)
{
    const RuntimeException error(number, FromQt(words));
    Clear();
    if (const auto event = owner.Error) event(error);
}

QByteArray URLConnection::Private::Clear()
{
    timer.stop();
    timer.disconnect();
    if (QNetworkReply* const old = std::exchange(reply, nullptr)) {
        old->disconnect(&timer);
        old->abort();
        old->deleteLater();
    }
    return std::exchange(received, {});
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
    if (!IsFetchable(link)) {
        private_->FailLater(QNetworkReply::ProtocolUnknownError,
                            QStringLiteral("No address of a web server: %1").arg(ToQt(url)));
        private_->timer.start(0);
        return;
    }
    private_->FailLater(QNetworkReply::TimeoutError, QStringLiteral("No answer within %1 seconds").arg(timeout));
    private_->timer.start(std::chrono::seconds(timeout));

    QNetworkRequest request(link);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    // A compressed answer is mostly sent without its length, by which alone a part can be told from the whole.
    request.setRawHeader("Accept-Encoding", "identity");
    if (!AllowCertificateValidation) {
        QSslConfiguration security = request.sslConfiguration();
        security.setPeerVerifyMode(QSslSocket::VerifyNone);
        request.setSslConfiguration(security);
    }
    if (!private_->manager) private_->manager = std::make_unique<QNetworkAccessManager>();
    private_->Start(private_->manager->sendCustomRequest(request, ToQt(method).toUpper().toLatin1()));
}

void URLConnection::Disconnect() { private_->Clear(); }
