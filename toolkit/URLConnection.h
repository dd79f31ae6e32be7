/// Fetching over HTTP and HTTPS.
#pragma once

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/TextEncoding.h"

#include <functional>
#include <memory>

/// One request at a time; it runs in the background of the event loop and ends in one of two events, or in none after
/// `Disconnect`.
class URLConnection {
public:
    URLConnection();
    ~URLConnection();

    /// False accepts every certificate, self-signed ones included.
    bool AllowCertificateValidation = true;

    /// Sends a request. `timeout` is in seconds for the whole exchange; redirects are followed.
    void Send(StringView method, StringView url, int timeout);
    /// Ends a request under way without an event.
    void Disconnect();

    /// The answer of the server, an error page included; the bytes as they came. One that was sent without its length
    /// ends where the connection does.
    std::function<void(const String& url, Int64 httpStatus, const Bytes& content)> ContentReceived;
    /// No server, no answer in time, an answer that broke off, or one of more than `MaximumSize` bytes.
    std::function<void(const RuntimeException& error)> Error;

    /// 64 MiB, some thousand times the size of a large scenery_packs.ini.
    static constexpr Int64 MaximumSize = Int64{64} << 20;

private:
    struct Private;
    std::unique_ptr<Private> private_;
};
