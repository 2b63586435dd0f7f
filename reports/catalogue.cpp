#include "reports/catalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace medistock::reports {

namespace {

struct Entry
{
    const char *name;
    const char *title;
};

constexpr Entry designable[] = {
    { "bsby", "商品报损报溢单" },
    { "bsby2", "商品报损报溢单(无进价)" },
    { "cfd", "商品拆分单" },
    { "cfd2", "商品拆分单(无进价)" },
    { "kbd", "商品捆绑单" },
    { "kbd2", "商品捆绑单(无进价)" },
    { "cgd", "采购订单" },
    { "cgd2", "采购订单(无进价)" },
    { "cgjh", "采购进货单" },
    { "cgjh2", "采购进货单(无进价)" },
    { "cgplan", "采购计划单" },
    { "cgth", "采购退货单" },
    { "cgth2", "采购退货单(无进价)" },
    { "cgrk", "商品入库单" },
    { "spck", "商品出库单" },
    { "spxs", "销售单" },
    { "spxs2", "销售单(含零售价)" },
    { "spxs3", "销售单(商品合并)" },
    { "spxs4", "销售单(不含售价)" },
    { "xsd", "销售订单" },
    { "xsd2", "销售订单(不含售价)" },
    { "xsth", "销售退货单" },
    { "xsth2", "销售退货单(含零售价)" },
    { "xsth4", "销售退货单(不含售价)" },
    { "xsthmxb", "销售退货明细表" },
    { "jthmxb", "进退货明细表" },
    { "kcdbd", "库存调拨单" },
    { "kcdbd2", "库存调拨单(预设售价)" },
    { "kcpdd", "库存盘点单" },
    { "kccx", "库存查询表" },
    { "goodsprice", "商品标价签" },
    { "khjh", "客户借货单" },
    { "khjhdjb", "客户借货单据表" },
    { "khjhmxb", "客户借货明细表" },
    { "khsk", "客户付款单" },
    { "khdzd", "客户对帐单" },
    { "khdzmxb", "客户对帐明细表" },
    { "ghsdzd", "供货商对帐单" },
    { "ghsfukuan", "供货商付款单" },
    { "ysyffkd", "供货商付款单" },
    { "ysyfskd", "客户收款单" },
    { "ysyfyfk", "欠款单" },
    { "ysyfysk", "客户欠款单" },
    { "yskmxb", "应收款单据表" },
    { "yfkmxb", "应付款单据表" },
    { "yskglmxb", "应收款明细表" },
    { "yfkglmxb", "应付款明细表" },
    { "fpcgmxb", "进货发票明细表" },
    { "fpxsmxb", "销售发票明细表" },
    { "fyd", "费用、收入单" },
    { "xjyhd", "现金银行出入款单" },
    { "hyxf", "会员充值单" },
    { "posxp", "POS小票" },
    { "posxp58", "POS小票(58)" },
    { "jbxp", "POS交班小票" },
    { "jbxp58", "POS交班小票(58)" },
    { "possyymx", "POS收银员明细" },
    { "possyymx58", "POS收银员明细58)" },
    { "posxsd", "POS销售退货单" },
    { "gspysjl", "药品验收记录" },
    { "gspyfgljl", "药方管理记录" },
    { "gspcfxsjl", "处方药销售记录" },
    { "clypjcjl", "陈列药品维护检查记录" },
    { "gspyghmc", "员工花名册" },
    { "gspygpxjh", "员工培训计划" },
    { "gspygpxjl", "员工培训记录" },
};

// Titles of our own for the report-only templates; the report screens show them.
constexpr Entry reportOnly[] = {
    { "postj", "POS商品销售统计" },
    { "posmxb", "POS商品销售明细" },
    { "poslsz", "POS销售流水账" },
    { "poscrk", "POS出入款" },
    { "possxph1", "POS销售排行(按商品)" },
    { "possxph2", "POS销售排行(按类别)" },
    { "possxph3", "POS销售排行(按收银员)" },
    { "possytj1", "收银员收银统计" },
    { "possytj2", "POS销售提成" },
    { "ypcljl", "药品拆零记录" },
    { "jxqjcjl", "近效期药品跟踪记录" },
    { "xshh", "顾客退货单" },
    { "kcbd", "库存变动情况" },
};

QList<TemplateEntry> entries(const Entry *begin, const Entry *end)
{
    QList<TemplateEntry> list;
    for (const Entry *e = begin; e != end; ++e)
        list.append({ QString::fromLatin1(e->name), QString::fromUtf8(e->title) });
    return list;
}

} // namespace

QList<TemplateEntry> designableTemplates()
{
    return entries(std::begin(designable), std::end(designable));
}

QList<TemplateEntry> reportOnlyTemplates()
{
    return entries(std::begin(reportOnly), std::end(reportOnly));
}

QList<TemplateEntry> shippedTemplates()
{
    return designableTemplates() + reportOnlyTemplates();
}

QString templateTitle(const QString &name)
{
    for (const TemplateEntry &entry : shippedTemplates())
        if (entry.name == name)
            return entry.title;
    return name;
}

QString TemplateFolders::pathOf(const QString &name) const
{
    if (hasUserCopy(name))
        return userPathOf(name);
    return QDir(shipped).filePath(name + QStringLiteral(".fr3"));
}

QString TemplateFolders::userPathOf(const QString &name) const
{
    return QDir(user).filePath(name + QStringLiteral(".fr3"));
}

bool TemplateFolders::hasUserCopy(const QString &name) const
{
    return !user.isEmpty() && QFileInfo::exists(userPathOf(name));
}

TemplateFolders programTemplateFolders(const QString &dataFolder)
{
    TemplateFolders folders;
    folders.user
        = dataFolder.isEmpty() ? QString() : QDir(dataFolder).filePath(QStringLiteral("report"));
    const QString override = qEnvironmentVariable("MEDISTOCK_REPORT_DIR");
    folders.shipped = !override.isEmpty()
        ? override
        : QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("report"));
    return folders;
}

} // namespace medistock::reports
