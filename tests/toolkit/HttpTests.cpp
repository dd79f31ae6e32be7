#include "tests/TemporaryFolder.h"
#include "tests/toolkit/TestServer.h"
#include "toolkit/URLConnection.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QSslKey>
#include <gtest/gtest.h>

namespace {

using Afterwards = TestServer::Afterwards;
using namespace std::string_literals;

/// A connection and what came of it.
struct Client {
    Client()
    {
        connection.ContentReceived = [this](const String&, Int64 httpStatus, const Bytes& bytes) {
            ++events;
            status = httpStatus;
            content = bytes;
        };
        connection.Error = [this](const RuntimeException& error) {
            ++events;
            errorNumber = error.ErrorNumber;
            errorMessage = error.Message;
        };
    }
    bool Ended() const { return events > 0; }

    URLConnection connection;
    int events = 0;
    Int64 status = 0, errorNumber = 0;
    Bytes content;
    String errorMessage;
};

/// Whether it becomes true within a while. Unlike Qt's own, it sleeps only while nothing happens.
bool Becomes(const std::function<bool()>& condition)
{
    const QDeadlineTimer end(20'000);
    QTimer alarm;
    alarm.start(100);
    while (!condition() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

std::string Page(const std::string& status, const std::string& body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

/// Qt's numbers, which the user gets to see.
enum : Int64 {
    NoError,
    Refused,
    HungUp,
    NotFound,
    TimeOut,
    Untrusted = 6,
    Redirects = 10,
    TooLong = 299,
    Unknown = 301
};

struct Row {
    const char* name;
    std::string answer;
    Afterwards afterwards;
    Int64 error, status;
    std::string content;
};

const Row rows[] = {
    {"a page is content", Page("200 OK", "hello"), Afterwards::Wait, NoError, 200, "hello"},
    {"bytes that are no text come unchanged", Page("200 OK", "\xff\xfe\0\r\n\xc3"s), Afterwards::Wait, NoError, 200,
     "\xff\xfe\0\r\n\xc3"s},
    {"an empty page is content", Page("200 OK", ""), Afterwards::Wait, NoError, 200, ""},
    {"a page of unknown length ends with the connection", "HTTP/1.1 200 OK\r\n\r\nhello", Afterwards::Close, NoError,
     200, "hello"},
    {"a page may come in chunks",
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nhel\r\n2\r\nlo\r\n0\r\n\r\n", Afterwards::Wait, NoError,
     200, "hello"},
    {"a missing page is content too", Page("404 Not Found", "nothing here"), Afterwards::Wait, NoError, 404,
     "nothing here"},
    {"a page for those who have logged in is content too", Page("401 Unauthorized", "who?"), Afterwards::Wait, NoError,
     401, "who?"},
    {"a bad request is content too", Page("400 Bad Request", "what?"), Afterwards::Wait, NoError, 400, "what?"},
    {"a failure of the server is content too", Page("500 Oops", "oops"), Afterwards::Wait, NoError, 500, "oops"},
    {"a redirection is followed", "HTTP/1.1 302 Found\r\nLocation: /elsewhere\r\nContent-Length: 0\r\n\r\n",
     Afterwards::Wait, NoError, 200, "elsewhere"},
    {"a redirection to itself comes to an end", "HTTP/1.1 302 Found\r\nLocation: /page\r\nContent-Length: 0\r\n\r\n",
     Afterwards::Wait, Redirects, 0, ""},
    {"a redirection to a file is not followed",
     "HTTP/1.1 302 Found\r\nLocation: file:///etc/hostname\r\nContent-Length: 0\r\n\r\n", Afterwards::Wait, Unknown, 0,
     ""},
    {"a page that breaks off is an error", "HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nhel", Afterwards::Close,
     HungUp, 0, ""},
    {"a page that breaks off after much of it is an error",
     "HTTP/1.1 200 OK\r\nContent-Length: 400000\r\n\r\n" + std::string(300000, '.'), Afterwards::Close, HungUp, 0, ""},
    {"a missing page that breaks off is an error", "HTTP/1.1 404 Not Found\r\nContent-Length: 50\r\n\r\nhel",
     Afterwards::Close, HungUp, 0, ""},
    {"a head that breaks off is an error", "HTTP/1.1 200 OK\r\nContent-", Afterwards::Close, HungUp, 0, ""},
    {"a server that hangs up is an error", "", Afterwards::Close, HungUp, 0, ""},
    {"what is no HTTP is an error", "220 smtp ready\r\n", Afterwards::Close, HungUp, 0, ""},
    {"a server that says nothing runs out of time", "", Afterwards::Wait, TimeOut, 0, ""},
    {"a head without its page runs out of time", "HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\n", Afterwards::Wait,
     TimeOut, 0, ""},
    {"a page that drips for ever runs out of time", "HTTP/1.1 200 OK\r\n\r\n", Afterwards::GoOnForEver, TimeOut, 0, ""},
    {"a page above the limit is an error",
     Page("200 OK", std::string(std::size_t{URLConnection::MaximumSize} + 1, '.')), Afterwards::Wait, TooLong, 0, ""},
};

TEST(URLConnection, GivesTheAnswerOrAnError)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const TestServer server(row.answer, row.afterwards);
        Client client;
        client.connection.Send(U"Get", server.Url(), row.error == TimeOut ? 1 : 15);
        EXPECT_TRUE(Becomes([&] { return client.Ended(); }));
        EXPECT_EQ(client.errorNumber, row.error);
        EXPECT_EQ(client.errorMessage.empty(), row.error == NoError);
        EXPECT_EQ(client.status, row.status);
        EXPECT_EQ(client.content, row.content);
        EXPECT_EQ(server.Request().left(15), "GET /page HTTP/");
        QCoreApplication::processEvents();
        EXPECT_EQ(client.events, 1);
    }
}

TEST(URLConnection, TellsAnAddressWithoutAServerByAnErrorAfterSend)
{
    const std::u32string closed = TestServer("", Afterwards::Wait).Url();
    const struct {
        std::u32string url;
        Int64 error;
    } addresses[] = {{closed, Refused},
                     {U"http://name.invalid/", NotFound},
                     {U"http://", Unknown},
                     {U"http:///page", Unknown},
                     {U"https://[::1", Unknown},
                     {U"HTTP://x y/", Unknown},
                     {U"http://h:99999/", Unknown},
                     {U"file:///etc/hostname", Unknown},
                     {U"", Unknown}};
    for (const auto& [url, error] : addresses) {
        SCOPED_TRACE(QString::fromStdU32String(url).toStdString());
        Client client;
        client.connection.Send(U"Get", url, 15);
        EXPECT_FALSE(client.Ended());
        EXPECT_TRUE(Becomes([&] { return client.Ended(); }));
        EXPECT_EQ(client.errorNumber, error);
        EXPECT_FALSE(client.errorMessage.empty());
    }
}

TEST(URLConnection, IsSilentAfterDisconnectAndCanBeUsedAgain)
{
    TestServer slow("HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nhel", Afterwards::Wait);
    TestServer quick(Page("200 OK", "hello"), Afterwards::Wait);
    Client client;
    client.connection.Disconnect();
    client.connection.Send(U"Get", slow.Url(), 1);
    ASSERT_TRUE(Becomes([&] { return !slow.Request().isEmpty(); }));
    client.connection.Disconnect();
    client.connection.ClearRequestHeaders();
    EXPECT_TRUE(Becomes([&] { return slow.OpenConnections() == 0; })) << "the server is kept waiting";

    client.connection.Send(U"Get", U"no address", 1);
    client.connection.Disconnect();
    client.connection.Send(U"Get", slow.Url(), 1);
    client.connection.Send(U"Get", quick.Url(), 10);
    ASSERT_TRUE(Becomes([&] { return client.Ended(); }));
    EXPECT_EQ(client.content, "hello");
    EXPECT_EQ(client.events, 1);
}

TEST(URLConnection, MayBeDisconnectedOrSentAnewByItsOwnEvents)
{
    TestServer server(Page("200 OK", "hello"), Afterwards::Wait);
    Client client;
    const auto count = client.connection.ContentReceived;
    client.connection.Error = [&](const RuntimeException&) {
        client.connection.Disconnect();
        client.connection.Send(U"Get", server.Url(), 10);
    };
    client.connection.ContentReceived = [&](const String& url, Int64 status, const Bytes& bytes) {
        client.connection.Disconnect();
        count(url, status, bytes);
        if (client.events < 3) client.connection.Send(U"Get", server.Url(), 10);
    };
    client.connection.Send(U"Get", U"no address", 10);
    EXPECT_TRUE(Becomes([&] { return client.events == 3; }));
}

TEST(URLConnection, TrustsAnUnknownServerOnlyWhenToldTo)
{
    const TemporaryFolder folder;
    const auto key = QFile::decodeName((folder.Path() / "key.pem").c_str());
    const auto certificate = QFile::decodeName((folder.Path() / "certificate.pem").c_str());
    QProcess openssl;
    openssl.start("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=somebody",
                              "-keyout", key, "-out", certificate});
    if (!openssl.waitForFinished() || openssl.exitCode() != 0) GTEST_SKIP() << "no openssl to make a certificate";
    QFile keyFile(key);
    ASSERT_TRUE(keyFile.open(QIODevice::ReadOnly));
    QSslConfiguration security = QSslConfiguration::defaultConfiguration();
    security.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    security.setLocalCertificateChain(QSslCertificate::fromPath(certificate));

    for (const bool isChecked : {true, false}) {
        TestServer server(security, Page("200 OK", "hello"));
        Client client;
        client.connection.AllowCertificateValidation = isChecked;
        client.connection.Send(U"Get", server.Url(), 10);
        ASSERT_TRUE(Becomes([&] { return client.Ended(); }));
        EXPECT_EQ(client.content, isChecked ? "" : "hello");
        EXPECT_EQ(client.errorNumber, isChecked ? Untrusted : NoError);
    }
}

} // namespace
