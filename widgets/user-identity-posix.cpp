#include <unistd.h>

#include "user-identity.h"

namespace user_identity {

QString currentUserTag() {
  return QString::number(static_cast<qulonglong>(::getuid()));
}

}  // namespace user_identity
