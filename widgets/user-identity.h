#pragma once
// A short tag naming the signed-in user, used in per-user object names.

#include <QString>

namespace user_identity {

// Linux: the uid ("1000"). Windows: the user name, or "user" when unknown.
QString currentUserTag();

}  // namespace user_identity
