#pragma once

#include <QString>

namespace medistock::core {

// Passwords are kept as salted slow hashes (Argon2id in libsodium's string form). An empty stored
// password means "no password". A stored value that is not a hash is a plain password from an
// older file; it is accepted once and replaced by its hash.
QString hashPassword(const QString &password);
bool isPasswordHash(const QString &stored);
bool verifyPassword(const QString &stored, const QString &typed);

} // namespace medistock::core
