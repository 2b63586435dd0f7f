#pragma once

#include <QString>

namespace medistock::core {

// Typed text is cleaned before it is stored: characters that would upset SQL or reports become
// their full-width forms. Values are bound anyway; the cleaning decides what is kept.
enum class CleanStrength {
    Full, // every character of the general routine
    Medium, // as full, but brackets, plus, minus and slash stay
    Light, // only the quote, question mark and percent, and the back quote removed
};

// The general routine used for passwords, account-set names and notes.
QString cleanText(const QString &text);
QString cleanText(const QString &text, CleanStrength strength);

} // namespace medistock::core
