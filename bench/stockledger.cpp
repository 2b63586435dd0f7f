// The bulk loader of the stock benchmarks. It writes, day by day over three years, the ledger rows
// that receipts and sales would have posted, with their running columns computed by the engine's
// own step (stock::stepLedger), then the warehouse, batch and goods stores those rows leave. A
// rerun from the first row of a goods afterwards rewrites nothing: the loader checks that.
// The rows come from one generator, whatever the engine: the same seeded sequence gives the
// same rows, ids included, in an SQLite file and on a server, so that their figures compare.
// They go in many to a statement (BatchInsert), every value bound, because a server answers
// each statement over the wire: 1,000,000 of them one by one were too slow to wait for.
#include "bench/stockledger.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "core/schema.h"
#include "core/schemacatalogue.h"
#include "core/transaction.h"
#include "stock/ledger.h"
#include "stock/stores.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <random>

#include <unistd.h>

namespace medistock::bench {

namespace {

const QStringList warehouses { QStringLiteral("100001"), QStringLiteral("100002"),
    QStringLiteral("100003") };
constexpr int days = 3 * 365;
constexpr int linesPerDocument = 20;

struct Pair
{
    int goods = 0;
    int warehouse = 0;
    stock::RunningState state;
    double sold = 0;
    int receipts = 0;
    int sales = 0;
    double batches[4] = { 0, 0, 0, 0 }; // by calendar year from the first day's
};

double basePrice(int goods)
{
    return 5 + goods % 40;
}

// Rows of one table written many to a statement, every value a bound parameter. A statement
// carries at most `valuesPerStatement` values: under SQLite's limit of 32,766 parameters and the
// server's of 65,535.
class BatchInsert
{
public:
    static constexpr int valuesPerStatement = 30000;

    BatchInsert(core::Connection &db, const char *table, const QStringList &columns)
        : m_db(db)
        , m_head(QStringLiteral("insert into %1 (%2) values ")
                     .arg(QLatin1String(table), columns.join(QLatin1Char(','))))
        , m_row(QLatin1Char('(') + QStringList(columns.size(), QStringLiteral("?")).join(',')
              + QLatin1Char(')'))
        , m_rowsPerStatement(valuesPerStatement / int(columns.size()))
    { }
    ~BatchInsert() { Q_ASSERT(m_values.isEmpty()); }

    void add(const QVariantList &row)
    {
        m_values.append(row);
        if (++m_rows == m_rowsPerStatement)
            flush();
    }

    // Writes what is waiting; call it before the transaction commits.
    void flush()
    {
        if (m_rows == 0)
            return;
        m_db.exec(m_head + QStringList(m_rows, m_row).join(QLatin1Char(',')), m_values);
        m_values.clear();
        m_rows = 0;
    }

private:
    core::Connection &m_db;
    QString m_head;
    QString m_row;
    int m_rowsPerStatement;
    QVariantList m_values;
    int m_rows = 0;
};

class Loader
{
public:
    Loader(const shell::Session &session, const LedgerShape &shape)
        : m_session(session)
        , m_shape(shape)
        , m_rounding(stock::RunningRounding::of(session.params()))
    { }

    void run()
    {
        addGoodsAndWarehouses();
        for (int g = 0; g < m_shape.goods; ++g)
            for (int w = 0; w < 3; ++w)
                m_pairs.push_back({ g, w, {}, 0, 0, 0, { 0, 0, 0, 0 } });
        const QDate first = benchToday().addDays(-days);
        for (int d = 0; d <= days; d += 30) {
            core::Transaction transaction(m_session.db());
            for (int day = d; day < std::min(d + 30, days + 1); ++day)
                writeDay(first.addDays(day), first.addDays(day).year() - first.year());
            m_ledger.flush();
            transaction.commit();
        }
        core::Transaction transaction(m_session.db());
        writeStores();
        addDocuments();
        transaction.commit();
    }

private:
    double uniform() { return std::uniform_real_distribution<double>(0, 1)(m_random); }
    int upTo(int n) { return std::uniform_int_distribution<int>(0, n)(m_random); }

    void addGoodsAndWarehouses()
    {
        core::Transaction transaction(m_session.db());
        for (const QString &code : warehouses.mid(1))
            m_session.db().exec(QStringLiteral("insert into jxc_ckxx (ck_sn,ck_name) values (?,?)"),
                { code, QStringLiteral("仓库") + code });
        BatchInsert goods(m_session.db(), "jxc_goods",
            { "g_sn", "g_name", "g_jm", "dw_name", "g_kc", "g_pjjj", "g_jj", "g_gdcbj", "g_xzsl",
                "g_cgpl", "g_xspl", "g_scjj", "ghs_sn" });
        for (int g = 0; g < m_shape.goods; ++g)
            goods.add({ benchGoods(g), QStringLiteral("测试药品") + QString::number(g),
                QStringLiteral("CSYP"), QStringLiteral("盒"), 0, 0, basePrice(g), 0, 0, 0, 0, 0,
                QStringLiteral("100001") });
        goods.flush();
        transaction.commit();
    }

    void writeDay(QDate day, int year)
    {
        m_documentLines[0] = m_documentLines[1] = 0;
        const int ordinaryPairs = (m_shape.goods - 1) * 3;
        const double chance = double(m_shape.rows - m_shape.busyRows) / ordinaryPairs / days;
        for (Pair &pair : m_pairs)
            if (pair.goods != 0 && uniform() < chance)
                writeRow(pair, day, year);
        const double busyPerDay = double(m_shape.busyRows) / days;
        const int busy = int(busyPerDay) + (uniform() < busyPerDay - int(busyPerDay) ? 1 : 0);
        for (int i = 0; i < busy; ++i)
            writeRow(m_pairs[0], day, year);
    }

    void writeRow(Pair &pair, QDate day, int year)
    {
        const bool receipt = pair.state.quantity < 10 || uniform() < 0.35;
        const double price = receipt
            ? m_session.params().roundPrice(basePrice(pair.goods) * (0.9 + 0.2 * uniform()))
            : basePrice(pair.goods) * 1.3;
        const double quantity
            = receipt ? 20 + upTo(40) : 1 + upTo(std::min(int(pair.state.quantity), 10) - 1);
        const double amount = m_session.params().roundAmount(price * quantity);
        const QString kind = receipt ? QStringLiteral("cj") : QStringLiteral("xs");
        const stock::LedgerStep step
            = stock::stepLedger(pair.state, { kind, quantity, amount, price }, m_rounding);
        const int sequence = 10001 + m_documentLines[receipt ? 0 : 1]++ / linesPerDocument;
        const QString number
            = kind.toUpper() + day.toString(QStringLiteral("yyMMdd")) + QString::number(sequence);
        // A sale is costed at the average it leaves at, as the sale's entry costs it.
        const double cost = receipt ? 0 : pair.state.average;
        insertRow(pair, day, kind, number,
            { quantity, amount, price, cost, m_session.params().roundAmount(quantity * cost) },
            step);
        pair.state = step.after;
        pair.batches[year] += receipt ? quantity : -quantity;
        (receipt ? pair.receipts : pair.sales) += 1;
        if (!receipt)
            pair.sold += quantity;
    }

    struct Line
    {
        double quantity, amount, price, cost, totalCost;
    };

    void insertRow(const Pair &pair, QDate day, const QString &kind, const QString &number,
        Line line, const stock::LedgerStep &step)
    {
        const QString date = day.toString(QStringLiteral("yyyy-MM-dd"));
        const bool sale = kind == QLatin1String("xs");
        m_ledger.add({ kind, number, date, benchGoods(pair.goods),
            QStringLiteral("测试药品") + QString::number(pair.goods), QStringLiteral("盒"),
            line.price, line.quantity, line.amount, line.amount, line.amount - line.totalCost, 1,
            QStringLiteral("admin"), warehouses[pair.warehouse], QStringLiteral("100001"),
            QStringLiteral("P") + date.left(4), QStringLiteral("2028-12-31"),
            QStringLiteral("2022-01-01"), QStringLiteral("admin"), date, step.carriedQuantity,
            step.carriedAmount, step.after.quantity, step.after.average, step.after.value,
            sale ? QVariant(line.cost) : QVariant(),
            sale ? QVariant(line.totalCost) : QVariant() });
    }

    void writeStores()
    {
        const QDate first = benchToday().addDays(-days);
        for (const Pair &pair : m_pairs) {
            const QString goods = benchGoods(pair.goods);
            const QString warehouse = warehouses[pair.warehouse];
            stock::applyWarehouseStock(m_session,
                { goods, warehouse, pair.state.quantity, pair.state.quantity, pair.sold,
                    pair.state.average });
            for (int year = 0; year < 4; ++year)
                stock::addBatchStock(m_session,
                    { goods, warehouse, QStringLiteral("P") + QString::number(first.year() + year),
                        QStringLiteral("2028-12-31"), QStringLiteral("2022-01-01") },
                    pair.batches[year]);
            stock::applyGoodsTotals(
                m_session, goods, pair.state.quantity, pair.receipts, pair.sales);
            if (pair.warehouse == 2)
                stock::refreshGoodsAverage(m_session, goods, basePrice(pair.goods));
        }
    }

    void addReceipt(const QString &number, QDate date, int firstGoods, int lines)
    {
        core::Connection &db = m_session.db();
        db.exec(QStringLiteral("insert into jxc_jhd (j_sn,ghs_sn,ck_sn,j_jhrq,u_sn,a_name,"
                               "j_status,j_checker,j_chkrq) values (?,?,?,?,?,?,?,?,?)"),
            { number, QStringLiteral("100001"), mainWarehouse(),
                date.toString(QStringLiteral("yyyy-MM-dd")), QStringLiteral("100001"),
                QStringLiteral("admin"), 1, QStringLiteral("admin"),
                benchToday().toString(QStringLiteral("yyyy-MM-dd")) });
        for (int g = firstGoods; g < firstGoods + lines; ++g)
            db.exec(
                QStringLiteral("insert into jxc_jhsp (j_sn,g_sn,jh_dj,jh_sl,jh_zsl,jh_je,"
                               "jh_zje,jh_tax,jh_taxje,jh_dzl,jh_rksl,jh_qxsl,id2,id3,a_name,"
                               "t_ph,t_yxq,t_scrq) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                { number, benchGoods(g), 20, 10, 10, 200, 200, 0, 0, 1, 0, 0, 0, 0,
                    QStringLiteral("admin"), QStringLiteral("BENCH"), QStringLiteral("2028-12-31"),
                    QStringLiteral("2025-01-01") });
    }

    // The receipts and sales the postings are measured on, checked as their check leaves the
    // header before the stock is posted. A sale takes the goods a receipt of its date brings.
    void addDocuments()
    {
        const QDate yearBack = benchToday().addYears(-1);
        addReceipt(receiptToday(), benchToday(), 1, 50);
        addReceipt(receiptYearBack(), yearBack, 51, 50);
        addReceipt(receiptBusyYearBack(), yearBack, 0, 1);
        addSale(m_session.db(), saleToday(), benchToday(), 1, 50, true);
        addSale(m_session.db(), saleYearBack(), yearBack, 51, 50, true);
    }

    const shell::Session &m_session;
    LedgerShape m_shape;
    stock::RunningRounding m_rounding;
    std::mt19937 m_random { 20250314 };
    std::vector<Pair> m_pairs;
    int m_documentLines[2] = { 0, 0 };
    BatchInsert m_ledger { m_session.db(), "jxc_goodslist",
        { "gl_flag", "gl_djh", "gl_kdrq", "g_sn", "g_name", "dw_name", "gl_dj", "gl_sl", "gl_zje",
            "gl_je", "gl_lr", "gl_dzl", "a_name", "ck_sn", "ghs_sn", "t_ph", "t_yxq", "t_scrq",
            "gl_checker", "gl_chkrq", "gl_sqsl", "gl_sqje", "gl_kc", "gl_pjjj", "gl_kczje",
            "gl_cbj", "gl_zcb" } };
};

// A rerun from the first row of a goods must find every running column as the loader wrote it.
void verify(const shell::Session &session, const QString &goods)
{
    core::Connection &db = session.db();
    const qint64 first
        = db.firstValue(QStringLiteral("select id from jxc_goodslist where g_sn=? and ck_sn=? "
                                       "order by gl_kdrq,id limit 1"),
                { goods, mainWarehouse() })
              .toLongLong();
    core::Transaction check(db);
    const stock::RerunSummary summary = stock::rerunLedger(session, first, false);
    if (summary.rowsRewritten != 0)
        throw core::DbError(
            QStringLiteral("bulk ledger differs from the engine's rerun: ") + goods);
}

// The indexes are part of what is measured: a catalogue with other indexes gets a file of its own.
QString indexesKey()
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const core::IndexDef &index : core::schemaIndexes()) {
        hash.addData(QByteArray(index.table));
        hash.addData(QByteArray(index.columns));
    }
    return QString::fromLatin1(hash.result().toHex().left(8));
}

QString cachePath(const LedgerShape &shape)
{
    QString folder = qEnvironmentVariable("MEDISTOCK_BENCH_CACHE");
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return QDir(folder).filePath(QStringLiteral("medistock-bench-stock-v4-%1-%2-%3-%4.db")
                                     .arg(shape.goods)
                                     .arg(shape.rows)
                                     .arg(shape.busyRows)
                                     .arg(indexesKey()));
}

std::unique_ptr<shell::Session> adminSession(
    core::Connection &connection, core::Interaction &interaction)
{
    auto opened = shell::openSession(connection, interaction, core::Clock(benchToday()),
        QStringLiteral("admin"), QString(), core::LoginMode::Script);
    if (!opened)
        throw core::DbError(opened.message());
    return std::move(opened.value());
}

// Tells how long the set took, load and checks together: the figure to compare between engines.
void load(core::Connection &connection, const LedgerShape &shape)
{
    QElapsedTimer timer;
    timer.start();
    const Outcome created = core::createAllTables(
        connection, { benchToday(), { QStringLiteral("基准测试药房"), {}, {} } });
    if (!created)
        throw core::DbError(created.message());
    core::ScriptedInteraction interaction;
    auto session = adminSession(connection, interaction);
    Loader(*session, shape).run();
    verify(*session, benchGoods(1));
    if (shape.busyRows > 0)
        verify(*session, busyGoods());
    qInfo("bench: %s set of %d ledger rows loaded in %.1f s",
        connection.dialect() == core::Dialect::Sqlite ? "SQLite" : "PostgreSQL", shape.rows,
        double(timer.elapsed()) / 1000);
}

void build(const LedgerShape &shape, const QString &path)
{
    const QString building = path + QStringLiteral(".building");
    QFile::remove(building);
    {
        auto connection = core::Connection::openSqlite(building);
        load(*connection, shape);
    }
    QFile::remove(path);
    QFile::rename(building, path);
}

// The names are the benchmark's own (letters, digits, "_"), so they may stand in the statement.
QString quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

// The server's cache of a shape: built under another name, renamed when whole.
QString serverCache(const LedgerShape &shape, const core::Connection::PostgresOptions &server)
{
    const QString name = QStringLiteral("medistock_bench_v4_%1_%2_%3_%4")
                             .arg(shape.goods)
                             .arg(shape.rows)
                             .arg(shape.busyRows)
                             .arg(indexesKey());
    auto maintenance = core::Connection::openPostgres(server);
    if (maintenance->exists(QStringLiteral("select 1 from pg_database where datname=?"), { name }))
        return name;
    const QString building = name + QStringLiteral("_building");
    maintenance->execDirect(QStringLiteral("drop database if exists ") + quoted(building));
    maintenance->execDirect(QStringLiteral("create database ") + quoted(building));
    {
        auto connection = core::Connection::openPostgres(server.withDatabase(building));
        load(*connection, shape);
        connection->execDirect(QStringLiteral("analyze"));
    }
    maintenance->execDirect(
        QStringLiteral("alter database %1 rename to %2").arg(quoted(building), quoted(name)));
    return name;
}

// A fresh copy of the 1,000,000-row set leaves some 400 MB to be written out. Written now, they
// do not land in the first measurements of the set. A server's user without the right to a
// checkpoint leaves the server's part to the server.
void writeOut(core::Connection *server)
{
    if (server) {
        try {
            server->execDirect(QStringLiteral("checkpoint"));
        } catch (const core::DbError &) { }
    }
    ::sync();
}

} // namespace

QString busyGoods()
{
    return benchGoods(0);
}

QString benchGoods(int index)
{
    return QString::number(300001 + index);
}

QString mainWarehouse()
{
    return warehouses.first();
}

QDate benchToday()
{
    return QDate(2025, 3, 14);
}

QString receiptToday()
{
    return QStringLiteral("CJ25031499001");
}

QString receiptYearBack()
{
    return QStringLiteral("CJ24031499002");
}

QString receiptBusyYearBack()
{
    return QStringLiteral("CJ24031499003");
}

QString saleToday()
{
    return QStringLiteral("XS25031499001");
}

QString saleYearBack()
{
    return QStringLiteral("XS24031499002");
}

stock::PostingHeader postingHeader(const QString &number)
{
    const bool today = number == receiptToday() || number == saleToday();
    const QDate date = today ? benchToday() : benchToday().addYears(-1);
    stock::PostingHeader header;
    header.number = number;
    header.date = date.toString(QStringLiteral("yyyy-MM-dd"));
    header.warehouse = mainWarehouse();
    header.warehouseName = QStringLiteral("主仓库");
    header.party = header.employee = QStringLiteral("100001");
    return header;
}

void addSale(core::Connection &db, const QString &number, QDate date, int firstGoods, int lines,
    bool checked)
{
    const QString checker = checked ? QStringLiteral("admin") : QString();
    const QString checkedOn
        = checked ? benchToday().toString(QStringLiteral("yyyy-MM-dd")) : QString();
    db.exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,"
                           "ls_yhje,u_sn,a_name,ls_status,ls_jsfs,ls_kmmc,ls_th,ls_crk,ls_qk,"
                           "ls_hkje,ls_dhbz,ls_checker,ls_chkrq) "
                           "values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { number, QStringLiteral("100001"), mainWarehouse(),
            date.toString(QStringLiteral("yyyy-MM-dd")), 60.0 * lines, 60.0 * lines, 0,
            QStringLiteral("100001"), QStringLiteral("admin"), checked ? 1 : 0, 1,
            QStringLiteral("现金"), 0, 0, 0, 0, 0, checker, checkedOn });
    for (int g = firstGoods; g < firstGoods + lines; ++g)
        db.exec(QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn,dw_name,g_zhxs,ls_sl,ls_zsl,"
                               "ls_dj,ls_tax,ls_taxdj,ls_taxje,ls_je,ls_zje,ls_dzl,ls_cbj2,ls_cbj,"
                               "ls_zcb,ls_lsj,ls_cksl,ls_qxsl,id2,id3,gl_djh2,a_name,t_ph,t_yxq,"
                               "t_scrq) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,"
                               "?)"),
            { number, benchGoods(g), QStringLiteral("盒"), 1, 2, 2, 30, 0, 30, 0, 60, 60, 1, 20, 20,
                40, 35, 2, 0, 0, 0, QString(), QStringLiteral("admin"), QStringLiteral("BENCH-S"),
                QStringLiteral("2028-12-31"), QString() });
}

BenchSet::BenchSet(const LedgerShape &shape)
{
    const QString cached = cachePath(shape);
    if (!QFile::exists(cached))
        build(shape, cached);
    const QString working = path();
    if (!QFile::copy(cached, working))
        throw core::DbError(QStringLiteral("cannot copy ") + cached);
    writeOut(nullptr);
    m_connection = core::Connection::openSqlite(working);
    m_session = adminSession(*m_connection, m_interaction);
}

std::optional<core::Connection::PostgresOptions> benchServer()
{
    QString text = qEnvironmentVariable("MEDISTOCK_BENCH_PG");
    if (text.isEmpty())
        text = qEnvironmentVariable("MEDISTOCK_TEST_PG");
    return text.isEmpty() ? std::nullopt : core::Connection::PostgresOptions::parse(text);
}

BenchSet::BenchSet(const LedgerShape &shape, const core::Connection::PostgresOptions &server)
    : m_server(server)
{
    const QString cached = serverCache(shape, server);
    m_database = QStringLiteral("medistock_bench_work_%1_%2")
                     .arg(QCoreApplication::applicationPid())
                     .arg(shape.rows);
    auto maintenance = core::Connection::openPostgres(server);
    maintenance->execDirect(
        QStringLiteral("drop database if exists %1 with (force)").arg(quoted(m_database)));
    maintenance->execDirect(
        QStringLiteral("create database %1 template %2").arg(quoted(m_database), quoted(cached)));
    writeOut(maintenance.get());
    m_connection = core::Connection::openPostgres(server.withDatabase(m_database));
    m_session = adminSession(*m_connection, m_interaction);
}

BenchSet::~BenchSet()
{
    m_session.reset();
    m_connection.reset();
    if (m_server) {
        auto maintenance = core::Connection::openPostgres(*m_server);
        maintenance->execDirect(
            QStringLiteral("drop database if exists %1 with (force)").arg(quoted(m_database)));
    }
}

int BenchSet::ledgerRows()
{
    return m_connection->firstValue(QStringLiteral("select count(*) from jxc_goodslist")).toInt();
}

} // namespace medistock::bench
