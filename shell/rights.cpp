#include "shell/rights.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::shell {

namespace {

constexpr const char *cgglOperations[] = {
    "采购进货",
    "采购退货",
    "往来账务",
    "进退货查询",
    "当前库存查询",
    "采购进货审核",
    "采购退货审核",
    "商品入库",
    "商品入库审核",
    "采购进货取消审核",
    "采购退货取消审核",
    "商品入库取消审核",
    "采购计划单",
    "采购计划单审核",
    "采购计划单取消审核",
    "允许在采购进货待审核界面添加商品",
    "允许删除采购进货待审核单据",
    "采购进货允许增加新商品",
};
constexpr const char *xsglOperations[] = {
    "商品销售",
    "顾客退货",
    "往来账务",
    "销售退货查询",
    "当前库存查询",
    "商品出库",
    "商品销售审核",
    "顾客退货审核",
    "商品出库审核",
    "快递打印",
    "商品销售取消审核",
    "顾客退货取消审核",
    "商品出库取消审核",
    "允许修改销售成本价",
    "销售订单",
    "销售订单审核",
    "销售订单取消审核",
    "允许在商品销售待审核界面添加商品",
    "允许删除商品销售待审核单据",
    "允许POS销售",
};
constexpr const char *kcglOperations[] = {
    "库存调拨",
    "库存盘点",
    "库存报损报溢",
    "库存报警查询",
    "商品拆分捆绑",
    "库存变动情况",
    "库存成本统计",
    "库存调拨审核",
    "库存盘点审核",
    "报损报溢审核",
    "拆分捆绑审核",
    "库存调拨取消审核",
    "库存盘点取消审核",
    "报损报溢取消审核",
    "拆分捆绑取消审核",
    "过期查询",
    "库存核对",
    "修改商品均价",
};
constexpr const char *wlzkOperations[] = {
    "应收登记",
    "收款登记",
    "应收帐表",
    "应付登记",
    "付款登记",
    "应付帐表",
    "应收登记审核",
    "收款登记审核",
    "应付登记审核",
    "付款登记审核",
    "修改收付款日期",
    "进货发票管理",
    "销售发票管理",
    "进货发票审核",
    "销售发票审核",
};
constexpr const char *tjglOperations[] = {
    "进货月报",
    "商品采购统计",
    "业务员采购统计",
    "出库月报",
    "商品销售统计",
    "业务员销售统计",
    "库存变动查询",
    "库存成本统计",
    "营业分析",
    "商品销售排行",
    "单据查询",
    "批次查询",
    "进销存统计",
    "POS销售流水账",
    "POS商品销售统计",
    "POS销售排行",
    "会员消费统计",
    "收银员收银统计",
    "收银员出入款管理",
    "POS销售提成",
};
constexpr const char *rcglOperations[] = {
    "供货商管理",
    "客户综合管理",
    "合同管理",
    "客户借货管理",
    "业务员管理",
    "费用及收入",
    "现金银行",
    "固定资产",
    "财务报表",
    "库存变动查询",
    "赠品管理",
    "费用及收入审核",
    "现金银行审核",
    "报价管理",
};
constexpr const char *gspglOperations[] = {
    "验收记录",
    "药方管理记录",
    "陈列检查记录",
    "零售拆零记录",
    "含麻记录",
    "近效期跟踪记录",
    "处方药销售记录",
    "员工花名册",
    "GSP参数",
    "GSP管理文档",
    "仓库温湿度管理",
    "员工培训计划",
    "员工培训记录",
};
constexpr const char *qtczOperations[] = {
    "商品管理",
    "供货商设置",
    "客户设置",
    "员工设置",
    "仓库设置",
    "操作员设置",
    "显示商品成本价",
    "允许更改单据日期",
    "显示商品销售价",
    "会员管理",
    "商品调价",
    "系统设置",
    "备份/恢复数据库",
    "查看日志",
    "清除日志",
    "商品期初建账",
    "条码打印",
    "报表设计",
    "允许修改预设售价,进价",
    "帐套管理",
    "允许设置商品提成",
};

constexpr RightArea areas[] = {
    { "cggl", "采购管理", cgglOperations },
    { "xsgl", "销售管理", xsglOperations },
    { "kcgl", "库存管理", kcglOperations },
    { "wlzk", "往来帐款", wlzkOperations },
    { "tjgl", "统计报表", tjglOperations },
    { "rcgl", "日常管理", rcglOperations },
    { "gspgl", "GSP管理", gspglOperations },
    { "qtcz", "其它操作", qtczOperations },
};

const QString administratorRole = QStringLiteral("100001");

bool grants(const QString &rights, int position)
{
    return position >= 1 && position <= rights.size()
        && rights.at(position - 1) == QLatin1Char('1');
}

} // namespace

std::span<const RightArea> rightAreas()
{
    return areas;
}

const RightArea *findRightArea(const QString &column)
{
    for (const RightArea &area : areas)
        if (column == QLatin1String(area.column))
            return &area;
    return nullptr;
}

QString roleNameRequiredText()
{
    return QStringLiteral("角色名称必须填写！");
}

QString roleNameTakenText(const QString &name)
{
    return QStringLiteral("角色名称：%1 已经存在，请重新输入！").arg(name);
}

bool hasRight(const Session &session, const QString &column, int position)
{
    const RightArea *area = findRightArea(column);
    if (!area)
        return false;
    if (session.isAdministrator())
        return true;
    core::Connection &db = session.db();
    if (session.params().integer("cs_cgyh") == 1 && !session.isAdministrator()
        && !db.exists(QStringLiteral("select ck_sn from jxc_ckxx where ck_asn like ?"),
            { QLatin1Char('%') + session.user().code + QLatin1Char('%') }))
        return false;
    const QString rights
        = db.firstText(QStringLiteral("select %1 from jxc_role where r_sn=?").arg(area->column),
            { session.user().role });
    return grants(rights, position);
}

bool operatorHasRight(
    core::Connection &connection, const QString &column, int position, const QString &operatorName)
{
    const RightArea *area = findRightArea(column);
    if (!area)
        return false;
    if (connection.firstText(
            QStringLiteral("select r_sn from jxc_admin where a_name=?"), { operatorName })
        == administratorRole)
        return true;
    const QString rights = connection.firstText(
        QStringLiteral("select a.%1 from jxc_role a,jxc_admin b where a.r_sn=b.r_sn and b.a_name=?")
            .arg(area->column),
        { operatorName });
    return grants(rights, position);
}

QString rightString(const RightArea &area, const QList<bool> &ticked)
{
    QString rights;
    for (qsizetype i = 0; i < qsizetype(area.operations.size()); ++i)
        rights += i < ticked.size() && ticked.at(i) ? QLatin1Char('1') : QLatin1Char('0');
    return rights;
}

QList<Role> listRoles(core::Connection &connection)
{
    QList<Role> roles;
    for (const QSqlRecord &row :
        connection.rows(QStringLiteral("select * from jxc_role order by id"))) {
        Role role { row.value("id").toLongLong(), row.value("r_sn").toString(),
            row.value("r_name").toString(), {} };
        for (const RightArea &area : areas)
            role.rights.insert(QString::fromLatin1(area.column), row.value(area.column).toString());
        roles.append(role);
    }
    return roles;
}

Result<QString> saveRole(const Session &session, const RoleDraft &draft)
{
    const Outcome allowed = requireRight(session, "qtcz", 6);
    if (!allowed)
        return allowed;
    core::Interaction &ui = session.ui();
    core::Connection &db = session.db();
    const QString name = draft.name.trimmed();
    if (name.isEmpty())
        return core::refuse(ui, roleNameRequiredText());
    QString code;
    const Outcome outcome = core::guarded(ui, [&]() -> Outcome {
        QString taken = QStringLiteral("select r_name from jxc_role where r_name=?");
        QVariantList params { name };
        if (draft.id > 0) {
            taken += QStringLiteral(" and id<>?");
            params.append(draft.id);
        }
        if (db.exists(taken, params))
            return core::refuse(ui, roleNameTakenText(name));

        QStringList columns;
        QVariantList values;
        for (const RightArea &area : areas) {
            columns.append(QString::fromLatin1(area.column) + QStringLiteral("=?"));
            values.append(rightString(area, draft.ticked.value(QString::fromLatin1(area.column))));
        }
        core::Transaction transaction(db);
        if (draft.id > 0) {
            code = db.firstText(
                QStringLiteral("select r_sn from jxc_role where id=?"), { draft.id });
            db.exec(QStringLiteral("update jxc_role set r_name=?,") + columns.join(QLatin1Char(','))
                    + QStringLiteral(" where id=?"),
                QVariantList { name } + values + QVariantList { draft.id });
        } else {
            code = core::nextMasterCode(db, QStringLiteral("jxc_role"), QStringLiteral("r_sn"))
                       .value();
            db.exec(
                QStringLiteral("insert into jxc_role (r_sn,r_name,cggl,xsgl,kcgl,wlzk,tjgl,rcgl,"
                               "gspgl,qtcz) values (?,?,?,?,?,?,?,?,?,?)"),
                QVariantList { code, name } + values);
        }
        session.log(QStringLiteral("保存角色：") + name);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return code;
}

} // namespace medistock::shell
