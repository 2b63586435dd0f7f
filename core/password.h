#pragma once

#include <QString>

namespace medistock::core {

// Passwords are kept as salted slow hashes (Argon2id in libsodium's string form) of exactly what
// was typed: every character counts, nothing is cleaned. An empty stored password means "no
// password" and only an empty typed one matches it. A stored value that is not a hash is a plain
// password carried over from older books, which compared it with the typed text after text
// cleaning; it is compared that way once more, and the caller then replaces it by the hash of
// what was typed.
QString hashPassword(const QString &password);
bool isPasswordHash(const QString &stored);
bool verifyPassword(const QString &stored, const QString &typed);

} // namespace medistock::core
