#include "toolkit/URLConnection.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

/// A web server on loopback that sends what a test wants, well formed or not.
struct TestServer {
    /// Every request is answered with `answer`, but one for "/elsewhere" with a page that says so.
    explicit TestServer(const std::string& answer, bool closes = false)
    {
        server.listen(QHostAddress::LocalHost);
        url = U"http://127.0.0.1:" + ToText(server.serverPort()) + U"/page";
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this, answer, closes] {
            auto* const socket = server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, answer, closes, socket] {
                requests += socket->readAll();
                if (!requests.endsWith("\r\n\r\n")) return;
                const bool isElsewhere = requests.contains(" /elsewhere ");
                socket->write(isElsewhere ? "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nelsewhere"
                                          : QByteArray::fromStdString(answer));
                if (closes) socket->disconnectFromHost();
            });
        });
    }
    QTcpServer server;
    String url;
    /// All that the clients have sent.
    QByteArray requests;
};

/// A connection and what came of it.
struct Client : URLConnection {
    Client()
    {
        ContentReceived = [this](const String&, Int64 code, const Bytes& bytes) {
            ++events, status = code, content = bytes;
        };
        Error = [this](const RuntimeException& told) { ++events, error = told.ErrorNumber, message = told.Message; };
    }
    [[nodiscard]] bool Reaches(int number) const
    {
        return QTest::qWaitFor([&] { return events >= number; }, 60'000) && events == number;
    }
    void Fetch(const String& url, int timeout = 60)
    {
        Send(U"Get", url, timeout);
        EXPECT_EQ(events, 0);
        EXPECT_TRUE(Reaches(1));
    }

    int events = 0;
    Int64 status = 0, error = 0;
    Bytes content;
    String message;
};

constexpr Int64 Fine = 0, Refused = 1, HungUp = 2, NotFound = 3, Late = 4, Unknown = 301, TooLong = 299;

/// A head and a page of which more is announced than comes.
std::string Page(const std::string& head, const std::string& page, std::size_t missing = 0)
{
    return "HTTP/1.1 " + head + "\r\nContent-Length: " + std::to_string(page.size() + missing) + "\r\n\r\n" + page;
}

TEST(URLConnection, GivesTheAnswerOrAnError)
{
    const std::string moved = "302 Found\r\nLocation: /elsewhere", much(URLConnection::MaximumSize, '.'),
                      lines(URLConnection::MaximumLines, '\n');
    const std::tuple<const char*, std::string, bool, Int64, Int64, std::string> rows[] = {
        {"a page is content", Page("200 OK", "hello"), false, Fine, 200, "hello"},
        {"a page without its length ends with the connection", "HTTP/1.1 200 OK\r\n\r\nhi", true, Fine, 200, "hi"},
        {"a missing page is content too", Page("404 Not Found", "nothing"), false, Fine, 404, "nothing"},
        {"a page for those who log in is content too", Page("401 Unauthorized", "who?"), false, Fine, 401, "who?"},
        {"a redirection is followed", Page(moved, ""), true, Fine, 200, "elsewhere"},
        {"a page that breaks off late is an error", Page("200 OK", std::string(300'000, '.'), 1), true, HungUp, 0, ""},
        {"a server that hangs up is an error", "", true, HungUp, 0, ""},
        {"a server that says nothing runs out of time", "", false, Late, 0, ""},
        {"a page of the size of the limit is content", Page("200 OK", much), false, Fine, 200, much},
        {"a page above it is an error", Page("200 OK", much + "."), false, TooLong, 0, ""},
        {"so are more lines than the limit", Page("200 OK", lines + "\n"), false, TooLong, 0, ""},
        {"but not as many", Page("200 OK", lines), false, Fine, 200, lines},
    };
    for (const auto& [name, answer, closes, error, status, content] : rows) {
        SCOPED_TRACE(name);
        const TestServer server(answer, closes);
        Client client;
        client.Fetch(U" " + server.url, error == Late ? 1 : 60);
        EXPECT_EQ(client.error, error);
        EXPECT_EQ(client.message.empty(), error == Fine);
        EXPECT_EQ(client.status, status);
        EXPECT_EQ(client.content, content);
        EXPECT_EQ(server.requests.left(15), "GET /page HTTP/");
        EXPECT_TRUE(server.requests.contains("\r\nConnection: close\r\n"));
    }
}

TEST(URLConnection, AsksByIPv6WithUserAndPasswordOrByTheProxyOfTheSystem)
{
    TestServer server(Page("401 Who?\r\nWWW-Authenticate: Basic realm=x", ""));
    const quint16 number = server.server.serverPort();
    const String port = U":" + ToText(number);
    qputenv("http_proxy", "http://127.0.0.1" + QString::fromStdU32String(port).toLatin1());
    Client().Fetch(U"http://name.invalid/x");
    qunsetenv("http_proxy");
    EXPECT_TRUE(server.requests.startsWith("GET http://name.invalid/x HTTP")) << server.requests.toStdString();
    EXPECT_TRUE(server.requests.contains("Accept-Encoding: identity\r\n")) << server.requests.toStdString();
    server.requests.clear();
    server.server.close();
    server.server.listen(QHostAddress::LocalHostIPv6, number);
    Client().Fetch(U" http://u%20:p@[::1]" + port + U"?q=é x#part");
    EXPECT_TRUE(server.requests.startsWith("GET /?q=%C3%A9%20x HTTP/1.1\r\n")) << server.requests.toStdString();
    EXPECT_TRUE(server.requests.contains("Authorization: Basic dSA6cA==\r\n")) << server.requests.toStdString();
}

TEST(URLConnection, TellsAnAddressWithoutAServerByAnErrorAfterSend)
{
    const std::pair<String, Int64> rows[] = {{TestServer("").url, Refused},
                                             {U"http://name.invalid/", NotFound},
                                             {U"", Unknown},
                                             {U"file:///etc/fstab", Unknown}};
    for (const auto& [url, error] : rows) {
        Client client;
        client.Fetch(url);
        EXPECT_FALSE(client.message.empty()) << QString::fromStdU32String(url).toStdString();
        EXPECT_EQ(client.error, error);
    }
}

TEST(URLConnection, IsSilentAfterDisconnectAndCanBeUsedAgainEvenByItsEvents)
{
    const TestServer slow(Page("200 OK", "hel", 2)), quick(Page("200 OK", "hello"));
    Client client;
    client.Disconnect();
    for (const String& url : {slow.url, U"no address"s, slow.url}) {
        client.Send(U"Get", url, 1);
        client.Disconnect();
    }
    client.Send(U"Get", slow.url, 1);
    client.Error = [&](const RuntimeException&) {
        client.Disconnect();
        client.Send(U"Get", quick.url, 10);
    };
    client.ContentReceived = [&](const String&, Int64, const Bytes& bytes) {
        EXPECT_EQ(bytes, "hello");
        if (++client.events < 3) client.Send(U"Get", quick.url, 10);
    };
    EXPECT_TRUE(client.Reaches(3));
}

} // namespace
