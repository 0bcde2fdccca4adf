#pragma once
// The one way the agent opens a link: only web addresses (http or https with
// a host) go to the browser, whatever a service, a message or a label holds.
// Addresses are read tolerantly, so a sign-in address with an unencoded "|"
// or space still opens.

#include <QString>
#include <QUrl>

class QLabel;

namespace web_link {

// `address` as a link the agent may open, or an invalid QUrl when it is not
// an http or https address with a host.
QUrl parse(const QString& address);

// Hands `address` to the browser when parse() accepts it; otherwise one log
// line naming `what` (never the address, which may carry a token). True when
// the desktop took it.
bool open(const QString& address, const char* what);

// The links of `label` (rich text) open through open(), never directly.
void route(QLabel* label, const char* what);

}  // namespace web_link
