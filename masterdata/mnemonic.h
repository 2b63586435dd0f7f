#pragma once

#include <QString>

#include <memory>

namespace medistock::masterdata {

// The mnemonic code of a name: the upper-case pinyin initial of each Chinese character, with
// Latin letters and digits kept as they are and everything else left out ("普通客户" -> "PTKH",
// "维生素C片" -> "WSSCP"); what stands in brackets is the pack size and is left out too. Built
// on ICU's Han-to-Latin transliteration; a character with several readings takes the one ICU gives,
// which is why the code stays editable.
class Mnemonics
{
public:
    Mnemonics();
    ~Mnemonics();
    Mnemonics(const Mnemonics &) = delete;
    Mnemonics &operator=(const Mnemonics &) = delete;

    QString of(const QString &name) const;

private:
    struct Transliteration;
    std::unique_ptr<Transliteration> m_toLatin;
};

// One-off convenience for a single name.
QString mnemonicOf(const QString &name);

} // namespace medistock::masterdata
