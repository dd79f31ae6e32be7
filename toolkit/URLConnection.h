/// Fetching over HTTP and HTTPS.
#pragma once

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/TextEncoding.h"

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

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
    /// The whole answer of the server, an error page included, unpacked. Nothing tells the end of one that was sent
    /// packed or without its length from a break; one in pieces that broke off may pass, some in a hundred.
    std::function<void(const String& url, Int64 httpStatus, const Bytes& content)> ContentReceived;
    /// No answer, one that broke off, or one beyond the limits; the number is Qt's (`QNetworkReply::NetworkError`).
    std::function<void(const RuntimeException& error)> Error;

    /// So much, some hundred times a large scenery_packs.ini, keeps the program below 128 MiB during a fetch, and below
    /// 1 GiB when a text area shows the worst that fits: a tab takes it 100 bytes, an empty line 250.
    static constexpr Int64 MaximumSize = Int64{8} << 20, MaximumLines = 250'000;

private:
    void Read();
    void Fail(int number, const String& message);
    std::unique_ptr<QNetworkAccessManager> manager_; // from the first fetch on
    QNetworkReply* reply_ = nullptr;
};
