#include "core/password.h"

#include "core/textclean.h"

#include <sodium.h>

#include <stdexcept>

namespace medistock::core {

namespace {

void ensureSodium()
{
    if (sodium_init() < 0)
        throw std::runtime_error("libsodium could not be initialised");
}

} // namespace

QString hashPassword(const QString &password)
{
    ensureSodium();
    const QByteArray utf8 = password.toUtf8();
    char hashed[crypto_pwhash_STRBYTES];
    if (crypto_pwhash_str(hashed, utf8.constData(), quint64(utf8.size()),
            crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE)
        != 0)
        throw std::runtime_error("out of memory while hashing a password");
    return QString::fromLatin1(hashed);
}

bool isPasswordHash(const QString &stored)
{
    return stored.startsWith(QLatin1String(crypto_pwhash_STRPREFIX));
}

bool verifyPassword(const QString &stored, const QString &typed)
{
    if (stored.isEmpty())
        return typed.isEmpty();
    if (!isPasswordHash(stored))
        return stored == cleanText(typed);
    ensureSodium();
    const QByteArray hash = stored.toLatin1();
    const QByteArray utf8 = typed.toUtf8();
    return crypto_pwhash_str_verify(hash.constData(), utf8.constData(), quint64(utf8.size())) == 0;
}

} // namespace medistock::core
