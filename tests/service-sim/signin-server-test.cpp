// The sign-in page over real HTTP: the page, the form, the redirect back to
// the agent and the token that "get_token" then accepts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QTcpSocket>

#include "service-sim/device-model.h"
#include "service-sim/signin-server.h"
#include "tests/service-sim/sim-test-util.h"

namespace {

struct Response {
  int status = 0;
  QByteArray body;
  QByteArray location;
};

class SimSigninTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(server_.listen()); }
  // One request with `verb` (redirects are not followed).
  Response fetch(const QByteArray& verb, const QString& path = "/signin", const QByteArray& body = {}) {
    QNetworkRequest request{QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server_.port()).arg(path))};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    QNetworkReply* reply = nam_.sendCustomRequest(request, verb, body);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    EXPECT_TRUE(reply->isFinished() || finished.wait(5000));
    reply->deleteLater();
    return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll(),
            reply->rawHeader("Location")};
  }

  sim::DeviceModel model_{simtest::quick_scenario(false), std::string(), std::string()};
  sim::SigninServer server_{model_, "kim@example.com"};
  QNetworkAccessManager nam_;
};

TEST_F(SimSigninTest, PageHasTheAccountAndARealSignInButton) {
  EXPECT_EQ(server_.url(), QStringLiteral("http://127.0.0.1:%1/signin").arg(server_.port()));
  const Response r = fetch("GET");
  EXPECT_EQ(r.status, 200);
  EXPECT_TRUE(r.body.contains("<form method=\"post\" action=\"/signin\">"));
  EXPECT_TRUE(r.body.contains("<button id=\"signin\" type=\"submit\">Sign in</button>"));
  EXPECT_TRUE(r.body.contains("kim@example.com"));
}

TEST_F(SimSigninTest, SubmittingRedirectsToTheAgentWithAFreshTokenGetTokenAccepts) {
  QSignalSpy issued(&server_, &sim::SigninServer::tokenIssued);
  const Response r = fetch("POST", "/signin", "email=kim%40example.com&password=x");
  EXPECT_EQ(r.status, 302);
  const QByteArray prefix = "nimbrabackup://nimbrabackupprotocol?access_token=";
  ASSERT_TRUE(r.location.startsWith(prefix)) << r.location.constData();
  const std::string token = r.location.mid(prefix.size()).toStdString();
  EXPECT_GE(token.size(), 16u);
  ASSERT_EQ(issued.count(), 1);
  EXPECT_EQ(issued.at(0).at(0).toString().toStdString(), token);
  EXPECT_NE(fetch("POST", "/signin", "email=b").location, r.location);

  const Json::Value get = simtest::request("get_token", {{"token", token}});
  EXPECT_TRUE(jsonx::get_bool(model_.handle(get), "success"));
  EXPECT_TRUE(jsonx::has(model_.handle(get), "error"));  // used up
}

TEST_F(SimSigninTest, OtherPathsMethodsAndGarbageAreRefusedAndServingGoesOn) {
  EXPECT_EQ(fetch("GET", "/admin").status, 404);
  EXPECT_EQ(fetch("PUT", "/signin", "x").status, 405);
  QTcpSocket socket;
  socket.connectToHost(QHostAddress::LocalHost, server_.port());
  ASSERT_TRUE(socket.waitForConnected(3000));
  socket.write("NONSENSE\r\n\r\n");
  QSignalSpy closed(&socket, &QTcpSocket::disconnected);
  ASSERT_TRUE(closed.wait(5000));
  EXPECT_TRUE(socket.readAll().startsWith("HTTP/1.1 400"));
  EXPECT_EQ(fetch("GET").status, 200);
}

TEST_F(SimSigninTest, UnfinishedConnectionsAreDroppedAfterTheIdleTime) {
  server_.setIdleTimeoutMs(300);
  QTcpSocket silent, half;
  for (QTcpSocket* s : {&silent, &half}) {
    s->connectToHost(QHostAddress::LocalHost, server_.port());
    ASSERT_TRUE(s->waitForConnected(3000));
  }
  half.write("GET /signin HTTP/1.1\r\nHost: x\r\n");  // the blank line never comes
  half.flush();
  QSignalSpy silentClosed(&silent, &QTcpSocket::disconnected), halfClosed(&half, &QTcpSocket::disconnected);
  ASSERT_TRUE(silentClosed.wait(5000));
  ASSERT_TRUE(halfClosed.count() == 1 || halfClosed.wait(5000));
  EXPECT_EQ(server_.pendingConnections(), 0);
  EXPECT_EQ(fetch("GET").status, 200) << "a real browser is still served";
}

}  // namespace
