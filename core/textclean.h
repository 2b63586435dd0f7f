#pragma once

#include <QString>

namespace medistock::core {

// Typed text is cleaned before it is stored: characters that would upset SQL or reports become
// their full-width forms. Values are bound anyway; the cleaning decides what is kept. Passwords
// are not cleaned: they are hashed whole (only a legacy plain password is compared cleaned, see
// core/password.h).
enum class CleanStrength {
    Full, // every character of the general routine
    Medium, // as full, but brackets, plus, minus and slash stay
    Light, // only the quote, question mark and percent, and the back quote removed
};

// The general routine (full strength), used for account-set names and notes and operator names.
QString cleanText(const QString &text);
QString cleanText(const QString &text, CleanStrength strength);

} // namespace medistock::core
