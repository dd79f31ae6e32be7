/// Fetching over HTTP and HTTPS.
#pragma once

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/TextEncoding.h"

#include <functional>
#include <memory>

class QDeadlineTimer;
class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

/// One request at a time, by the system's proxy; it ends in one of two events, or in none after `Disconnect`.
class URLConnection {
public:
    URLConnection();
    ~URLConnection();
    /// `timeout` is in seconds for the whole exchange; 50 redirects are followed, from a safe address to safe ones
    /// only.
    void Send(StringView method, StringView url, int timeout);
    void Disconnect();

    /// False accepts every certificate, self-signed ones included.
    bool AllowCertificateValidation = true;

    /// The whole answer of the server, an error page included. Nothing tells a break from the end of one that was sent
    /// without its length or packed, though unpacked was asked for; one in pieces passed in 4 of 60 tries.
    std::function<void(const String& url, Int64 httpStatus, const Bytes& content)> ContentReceived;
    /// No answer, one that broke off, or one beyond the limits; the number is Qt's (`QNetworkReply::NetworkError`).
    std::function<void(const RuntimeException& error)> Error;
    static constexpr Int64 BrokeOff = 2, TooLate = 4, TooLong = 299;

    /// So much, some hundred times a large scenery_packs.ini, keeps the program below 128 MiB during a fetch, and below
    /// 1 GiB when a text area shows the worst that fits: a tab takes it 100 bytes, an empty line 250.
    static constexpr Int64 MaximumSize = Int64{8} << 20, MaximumLines = 250'000;

private:
    void Ask(const QNetworkRequest& request, const QDeadlineTimer& end);
    void Read(const QDeadlineTimer& end);
    void Fail(Int64 number, const String& message);
    std::unique_ptr<QNetworkAccessManager> manager_; // from the first fetch on
    QNetworkReply* reply_ = nullptr;
};
