#include "masterdata/mnemonic.h"

#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace medistock::masterdata {

struct Mnemonics::Transliteration
{
    std::unique_ptr<icu::Transliterator> transliterator;
};

Mnemonics::Mnemonics()
    : m_toLatin(std::make_unique<Transliteration>())
{
    UErrorCode status = U_ZERO_ERROR;
    m_toLatin->transliterator.reset(icu::Transliterator::createInstance(
        icu::UnicodeString::fromUTF8("Han-Latin; Latin-ASCII"), UTRANS_FORWARD, status));
    if (U_FAILURE(status) || !m_toLatin->transliterator)
        throw std::runtime_error("ICU has no Han-Latin transliterator");
}

Mnemonics::~Mnemonics() = default;

QString Mnemonics::of(const QString &name) const
{
    QString code;
    const std::u32string characters = name.toStdU32String();
    int bracketDepth = 0;
    for (char32_t c : characters) {
        // what stands in brackets is the pack size, not part of the name people search by
        if (c == U'(' || c == U'（' || c == U'[' || c == U'【') {
            ++bracketDepth;
            continue;
        }
        if (c == U')' || c == U'）' || c == U']' || c == U'】') {
            bracketDepth = std::max(0, bracketDepth - 1);
            continue;
        }
        if (bracketDepth > 0)
            continue;
        if (c < 128) {
            if (std::isalnum(int(c)))
                code += QChar(char16_t(std::toupper(int(c))));
            continue;
        }
        UErrorCode status = U_ZERO_ERROR;
        if (uscript_getScript(UChar32(c), &status) != USCRIPT_HAN)
            continue;
        icu::UnicodeString reading { UChar32(c) };
        m_toLatin->transliterator->transliterate(reading);
        for (int32_t i = 0; i < reading.length(); ++i) {
            const UChar letter = reading.charAt(i);
            if (letter < 128 && std::isalpha(int(letter))) {
                code += QChar(char16_t(std::toupper(int(letter))));
                break;
            }
        }
    }
    return code;
}

QString mnemonicOf(const QString &name)
{
    return Mnemonics().of(name);
}

} // namespace medistock::masterdata
