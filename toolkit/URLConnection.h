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
    /// No server, no answer in time, an answer that broke off, or one that is beyond the limits.
    std::function<void(const RuntimeException& error)> Error;

    /// What `Error` gives as the number.
    enum Failure : std::uint16_t {
        Refused = 1,
        HungUp = 2,
        HostNotFound = 3,
        Late = 4,
        Untrusted = 6,
        TooManyRedirections = 10,
        NetworkFailed = 99,
        TooLong = 299,
        NoWebServer = 301,
        NoHttp = 399
    };

    /// 8 MiB, some hundred times the size of a large scenery_packs.ini. By that the whole program stays below 128 MiB
    /// during a fetch, whatever the server sends, and below 1 GiB when a text area shows the worst that fits: a tab
    /// takes it 100 bytes, an empty line 250.
    static constexpr Int64 MaximumSize = Int64{8} << 20;
    static constexpr Int64 MaximumLines = 250'000;

private:
    struct Private;
    std::unique_ptr<Private> private_;
};
