#include "core/dbfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUrl>
#include <QtEndian>

#include <atomic>
#include <optional>

namespace medistock::core {

namespace {

const QByteArray sqliteMagic("SQLite format 3\0", 16);
constexpr qint64 headerSize = 100;
constexpr quint32 walMagic = 0x377f0682; // the low bit set means big-endian checksums
constexpr qint64 walHeaderSize = 32;
constexpr qint64 walFrameHeaderSize = 24;

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString folderText(const QString &path)
{
    return QStringLiteral("“%1”是一个文件夹，不是帐套文件。请把这个文件夹改名或移走后再打开帐套。")
        .arg(shown(path));
}

QString permissionText(const QString &path)
{
    return QStringLiteral("帐套文件“%1”不能读写：文件或所在文件夹“%2”是只读的，或没有权限。"
                          "请检查磁盘和文件夹的权限（或把帐套复制到可以写入的文件夹）后再打开。")
        .arg(shown(path), shown(QFileInfo(path).absolutePath()));
}

QString emptyText(const QString &path)
{
    return QStringLiteral("帐套文件“%1”是空的（0 字节），里面没有帐套数据。请用备份恢复这个帐套。")
        .arg(shown(path));
}

QString foreignText(const QString &path)
{
    return QStringLiteral("“%1”不是本系统的帐套文件（文件已损坏，或是别的文件用了这个名字）。"
                          "请用备份恢复这个帐套，或把这个文件移走。系统没有改动这个文件。")
        .arg(shown(path));
}

QString truncatedText(const QString &path)
{
    return QStringLiteral(
        "帐套文件“%1”不完整（文件被截断了），无法打开。请用最近的备份恢复这个帐套。"
        "系统没有改动这个文件。")
        .arg(shown(path));
}

QString strayWalText(const QString &path)
{
    return QStringLiteral("帐套文件“%1”旁边的日志文件“%2”不属于这个帐套（可能是复制或恢复文件时"
                          "从别处带来的）。为免把别的数据写进帐套，系统没有打开它。请把“%2”和“%3”"
                          "移到别的文件夹后再打开。")
        .arg(shown(path), shown(path + QStringLiteral("-wal")),
            shown(path + QStringLiteral("-shm")));
}

quint32 big32(const QByteArray &bytes, qint64 at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

// SQLite's page size field: 1 stands for 65536.
qint64 pageSizeOf(const QByteArray &header)
{
    const quint32 raw = qFromBigEndian<quint16>(header.constData() + 16);
    return raw == 1 ? 65536 : raw;
}

bool validPageSize(qint64 size)
{
    return size >= 512 && size <= 65536 && (size & (size - 1)) == 0;
}

// The WAL checksum: two running sums over 32-bit words taken in pairs.
struct WalChecksum
{
    quint32 s0 = 0;
    quint32 s1 = 0;
    void add(const char *data, qint64 size, bool bigEndian)
    {
        for (qint64 i = 0; i + 8 <= size; i += 8) {
            const quint32 x0 = bigEndian ? qFromBigEndian<quint32>(data + i)
                                         : qFromLittleEndian<quint32>(data + i);
            const quint32 x1 = bigEndian ? qFromBigEndian<quint32>(data + i + 4)
                                         : qFromLittleEndian<quint32>(data + i + 4);
            s0 += x0 + s1;
            s1 += x1 + s0;
        }
    }
};

struct WalHeader
{
    qint64 pageSize = 0;
    // The identity carried by the last valid frame of page 1; none when no such frame.
    std::optional<quint32> identity;
};

// Reads the frames SQLite would replay: each with the header's salts and a checksum that
// follows on from the one before, stopping at the first that fails.
std::optional<WalHeader> readWal(const QString &walPath)
{
    QFile file(walPath);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray header = file.read(walHeaderSize);
    if (header.size() < walHeaderSize || (big32(header, 0) & ~1u) != walMagic)
        return std::nullopt;
    const bool bigEndian = (big32(header, 0) & 1u) != 0;
    WalHeader wal;
    wal.pageSize = big32(header, 8);
    if (!validPageSize(wal.pageSize))
        return std::nullopt;
    WalChecksum sum;
    sum.add(header.constData(), 24, bigEndian);
    if (sum.s0 != big32(header, 24) || sum.s1 != big32(header, 28))
        return std::nullopt;
    while (true) {
        const QByteArray frame = file.read(walFrameHeaderSize + wal.pageSize);
        if (frame.size() < walFrameHeaderSize + wal.pageSize)
            break;
        if (big32(frame, 8) != big32(header, 16) || big32(frame, 12) != big32(header, 20))
            break;
        sum.add(frame.constData(), 8, bigEndian);
        sum.add(frame.constData() + walFrameHeaderSize, wal.pageSize, bigEndian);
        if (sum.s0 != big32(frame, 16) || sum.s1 != big32(frame, 20))
            break;
        if (big32(frame, 0) == 1)
            wal.identity = big32(frame, walFrameHeaderSize + 60);
    }
    return wal;
}

// Whether a WAL beside the file belongs to another database.
bool strayWal(const QString &path, const QByteArray &header)
{
    const QString walPath = path + QStringLiteral("-wal");
    if (QFileInfo(walPath).size() <= walHeaderSize)
        return false;
    const std::optional<WalHeader> wal = readWal(walPath);
    if (!wal)
        return false; // no valid header: SQLite ignores it too
    if (wal->pageSize != pageSizeOf(header))
        return true;
    // A file without an identity yet (made before identities) cannot be matched.
    const quint32 identity = big32(header, 60);
    return identity != 0 && wal->identity && *wal->identity != identity;
}

// The header says how many pages the file holds; a shorter file lost its end. While a WAL is
// beside it the header may run ahead of the file (a checkpoint cut short), so only then is the
// file's size not held to it.
bool truncated(const QString &path, const QByteArray &header, qint64 size)
{
    const qint64 pageSize = pageSizeOf(header);
    if (QFileInfo(path + QStringLiteral("-wal")).size() > 0)
        return false;
    if (size % pageSize != 0)
        return true;
    const quint32 changeCounter = big32(header, 24);
    const quint32 validFor = big32(header, 92);
    const qint64 pages = big32(header, 28);
    return changeCounter == validFor && pages > 0 && pages * pageSize > size;
}

bool writable(const QFileInfo &file)
{
    return file.isReadable() && file.isWritable() && QFileInfo(file.absolutePath()).isWritable();
}

std::atomic<int> verifyCounter { 0 };

} // namespace

QString damagedFileText(const QString &path)
{
    return QStringLiteral("帐套文件“%1”已损坏，无法使用。请用最近的备份恢复这个帐套。"
                          "为免损坏扩大，系统没有改动这个文件。")
        .arg(shown(path));
}

QString inspectDatabaseFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return folderText(path);
    if (!info.exists())
        return QString();
    if (!writable(info))
        return permissionText(path);
    if (info.size() == 0)
        return emptyText(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return permissionText(path);
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize || !header.startsWith(sqliteMagic)
        || !validPageSize(pageSizeOf(header)))
        return foreignText(path);
    const quint32 application = big32(header, 68);
    if (application != 0 && application != quint32(applicationId))
        return foreignText(path);
    if (truncated(path, header, info.size()))
        return truncatedText(path);
    if (strayWal(path, header))
        return strayWalText(path);
    return QString();
}

QString verifyDatabaseFile(const QString &path)
{
    const QString name = QStringLiteral("medistock-verify-%1").arg(++verifyCounter);
    QString refusal;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        // Without a WAL nobody has the file open: it is read as it lies, leaving no WAL or
        // index file beside it. With one, it is read with the WAL, as SQLite will.
        if (QFileInfo::exists(path + QStringLiteral("-wal"))) {
            db.setDatabaseName(path);
            db.setConnectOptions(
                QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=15000"));
        } else {
            db.setDatabaseName(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)
                + QStringLiteral("?immutable=1"));
            db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
        }
        if (!db.open()) {
            refusal = damagedFileText(path);
        } else {
            QSqlQuery query(db);
            if (!query.exec(QStringLiteral("pragma quick_check")) || !query.next()
                || query.value(0).toString() != QLatin1String("ok"))
                refusal = damagedFileText(path);
            else if (!query.exec(
                         QStringLiteral("select count(*) from sqlite_master where "
                                        "type='table' and name in ('jxc_admin','jxc_xtcs')"))
                || !query.next() || query.value(0).toInt() != 2)
                refusal = foreignText(path);
            query.finish();
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return refusal;
}

} // namespace medistock::core
