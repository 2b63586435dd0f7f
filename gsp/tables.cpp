#include "gsp/tables.h"

#include "core/spreadsheet.h"
#include "gsp/texts.h"

namespace medistock::gsp {

namespace {

// The kind of a column by its caption: "…金额" an amount, "…单价" a price, a caption that names a
// quantity or stock a quantity, the named figures plain numbers, the rest text.
ColumnKind kindOf(const QString &caption)
{
    if (caption.endsWith(QStringLiteral("金额")))
        return ColumnKind::Amount;
    if (caption.endsWith(QStringLiteral("单价")))
        return ColumnKind::Price;
    if (caption.contains(QStringLiteral("数量")) || caption.endsWith(QStringLiteral("库存")))
        return ColumnKind::Quantity;
    static const QStringList figures { QStringLiteral("温度"), QStringLiteral("湿度"),
        QStringLiteral("天数"), QStringLiteral("批次数"), QStringLiteral("笔数"),
        QStringLiteral("系数") };
    for (const QString &figure : figures)
        if (caption.contains(figure))
            return ColumnKind::Figure;
    return ColumnKind::Text;
}

// Starts a table with its columns; a caption ending in "+" is summed (the "+" is dropped).
RecordTable startTable(const QString &title, const QString &printKey, const QStringList &columns)
{
    RecordTable table;
    table.title = title;
    table.printKey = printKey;
    for (const QString &column : columns) {
        const bool summed = column.endsWith(QLatin1Char('+'));
        if (summed)
            table.summed.append(int(table.headers.size()));
        table.headers.append(summed ? column.chopped(1) : column);
        table.kinds.append(kindOf(table.headers.last()));
    }
    return table;
}

void addRow(RecordTable &table, const QVariant &key, const QVariantList &cells)
{
    table.keys.append(key);
    table.rows.append(cells);
}

QString yesOrEmpty(bool flag)
{
    return flag ? QStringLiteral("是") : QString();
}

QVariant optional(const std::optional<double> &value)
{
    return value ? QVariant(*value) : QVariant(QString());
}

} // namespace

QVariantList totalsRow(const RecordTable &table)
{
    QVariantList row;
    for (qsizetype i = 0; i < table.headers.size(); ++i)
        row.append(QString());
    if (!row.isEmpty())
        row[0] = QStringLiteral("合计");
    for (int column : table.summed) {
        double sum = 0;
        for (const QVariantList &cells : table.rows)
            sum += cells.value(column).toDouble();
        row[column] = sum;
    }
    return row;
}

Outcome exportTable(const RecordTable &table, const QString &path)
{
    QList<QVariantList> rows = table.rows;
    if (!table.summed.isEmpty())
        rows.append(totalsRow(table));
    return core::writeXlsx(path, table.title, table.headers, rows);
}

RecordTable acceptanceTable(const QList<AcceptanceRow> &rows)
{
    RecordTable t = startTable(texts::acceptanceTitle(), QStringLiteral("gspysjl"),
        { QStringLiteral("进货日期"), QStringLiteral("供货商"), QStringLiteral("商品名称"),
            QStringLiteral("规格"), QStringLiteral("药剂类型"), QStringLiteral("批准文号"),
            QStringLiteral("产品批号"), QStringLiteral("有效期至"), QStringLiteral("数量+"),
            QStringLiteral("验收结果"), QStringLiteral("包装检查"), QStringLiteral("合格证"),
            QStringLiteral("处理意见"), QStringLiteral("验收员"), QStringLiteral("单据号"),
            QStringLiteral("商品编号"), QStringLiteral("进口药品"), QStringLiteral("单位"),
            QStringLiteral("单价"), QStringLiteral("金额+"), QStringLiteral("生产日期"),
            QStringLiteral("仓库"), QStringLiteral("验收日期") });
    for (const AcceptanceRow &r : rows)
        addRow(t, r.id,
            { r.date, r.supplierName, r.goodsName, r.packing, r.dosage, r.approval, r.batch,
                r.expiry, r.quantity, r.result, r.packaging, r.certificate, r.handling, r.checker,
                r.number, r.goods, yesOrEmpty(r.imported), r.unit, r.price, r.amount, r.produced,
                r.warehouseName, r.checkDate });
    t.printFields = { QStringLiteral("j_jhrq"), QStringLiteral("ghs_name"),
        QStringLiteral("g_name"), QStringLiteral("gg_name"), QStringLiteral("g_yjlx"),
        QStringLiteral("color_name"), QStringLiteral("t_ph"), QStringLiteral("t_yxq"),
        QStringLiteral("jh_sl"), QStringLiteral("ysjg"), QStringLiteral("bzjc"),
        QStringLiteral("hgz"), QStringLiteral("clyj"), QStringLiteral("j_checker") };
    return t;
}

RecordTable prescriptionTable(const QList<PrescriptionRow> &rows)
{
    RecordTable t = startTable(texts::prescriptionsTitle(), QStringLiteral("gspyfgljl"),
        { QStringLiteral("销售日期"), QStringLiteral("单据号"), QStringLiteral("客户"),
            QStringLiteral("姓名"), QStringLiteral("身份证号"), QStringLiteral("住址"),
            QStringLiteral("手机号码"), QStringLiteral("处方号码"), QStringLiteral("处方说明"),
            QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("药剂类型"), QStringLiteral("注册证号"), QStringLiteral("单位"),
            QStringLiteral("数量+"), QStringLiteral("产品批号"), QStringLiteral("有效期至"),
            QStringLiteral("药师"), QStringLiteral("审核人"), QStringLiteral("审核日期") });
    for (const PrescriptionRow &r : rows)
        addRow(t, r.id,
            { r.date, r.number, r.customerName, r.patient, r.idCard, r.address, r.mobile,
                r.prescriptionNumber, r.instructions, r.goods, r.goodsName, r.packing, r.dosage,
                r.registration, r.unit, r.quantity, r.batch, r.expiry, r.pharmacist, r.checker,
                r.checkDate });
    t.printFields = { QStringLiteral("ls_xsrq"), {}, QStringLiteral("kh_name"), {}, {}, {}, {},
        QStringLiteral("t_cfhm"), QStringLiteral("t_cfsm"), {}, QStringLiteral("g_name"),
        QStringLiteral("gg_name"), QStringLiteral("g_yjlx"), QStringLiteral("g_zczh"), {},
        QStringLiteral("ls_sl"), {}, {}, {}, QStringLiteral("ls_checker") };
    return t;
}

RecordTable prescriptionSalesTable(const QList<PrescriptionRow> &rows)
{
    RecordTable t = startTable(texts::prescriptionSalesTitle(), QStringLiteral("gspcfxsjl"),
        { QStringLiteral("销售日期"), QStringLiteral("单据号"), QStringLiteral("客户"),
            QStringLiteral("姓名"), QStringLiteral("身份证号"), QStringLiteral("处方号码"),
            QStringLiteral("药师"), QStringLiteral("商品编号"), QStringLiteral("商品名称"),
            QStringLiteral("规格"), QStringLiteral("药剂类型"), QStringLiteral("药品类型"),
            QStringLiteral("注册证号"), QStringLiteral("进口药品"), QStringLiteral("生产厂商"),
            QStringLiteral("单位"), QStringLiteral("数量+"), QStringLiteral("单价"),
            QStringLiteral("金额+"), QStringLiteral("产品批号"), QStringLiteral("生产日期"),
            QStringLiteral("有效期至"), QStringLiteral("仓库"), QStringLiteral("审核人"),
            QStringLiteral("审核日期") });
    for (const PrescriptionRow &r : rows)
        addRow(t, r.id,
            { r.date, r.number, r.customerName, r.patient, r.idCard, r.prescriptionNumber,
                r.pharmacist, r.goods, r.goodsName, r.packing, r.dosage, r.category, r.registration,
                yesOrEmpty(r.imported), r.manufacturer, r.unit, r.quantity, r.price, r.amount,
                r.batch, r.produced, r.expiry, r.warehouseName, r.checker, r.checkDate });
    t.printFields = { QStringLiteral("ls_xsrq"), {}, {}, QStringLiteral("ls_xm"),
        QStringLiteral("ls_cardno"), QStringLiteral("t_cfhm"), QStringLiteral("t_yaoshi"), {},
        QStringLiteral("g_name"), QStringLiteral("gg_name"), {}, {}, {}, {}, {}, {},
        QStringLiteral("ls_sl"), {}, {}, QStringLiteral("t_ph"), {}, {}, QStringLiteral("ck_name"),
        QStringLiteral("ls_checker") };
    return t;
}

RecordTable splittingTable(const QList<SplittingRow> &rows)
{
    RecordTable t = startTable(texts::splittingTitle(), QStringLiteral("ypcljl"),
        { QStringLiteral("日期"), QStringLiteral("单据号"), QStringLiteral("单据类型"),
            QStringLiteral("商品名称"), QStringLiteral("规格"), QStringLiteral("单位"),
            QStringLiteral("拆零系数"), QStringLiteral("产品批号"), QStringLiteral("有效期至"),
            QStringLiteral("进货数量+"), QStringLiteral("销售数量+"), QStringLiteral("批次库存"),
            QStringLiteral("检查人"), QStringLiteral("单价"), QStringLiteral("往来单位"),
            QStringLiteral("仓库"), QStringLiteral("商品编号"), QStringLiteral("生产日期") });
    for (const SplittingRow &r : rows)
        addRow(t, r.id,
            { r.date, r.number, texts::ledgerKindText(r.kind, r.purchased + r.sold), r.goodsName,
                r.packing, r.unit, r.splitFactor, r.batch, r.expiry, r.purchased, r.sold,
                optional(r.batchStock), r.checker, r.price, r.partyName, r.warehouseName, r.goods,
                r.produced });
    t.printFields = { QStringLiteral("gl_kdrq"), QStringLiteral("gl_djh"), {},
        QStringLiteral("g_name"), QStringLiteral("gg_name"), {}, {}, QStringLiteral("t_ph"),
        QStringLiteral("t_yxq"), QStringLiteral("jh_sl"), QStringLiteral("xs_sl"),
        QStringLiteral("t_sl"), QStringLiteral("fhr") };
    return t;
}

RecordTable expiryTable(const QList<ExpiryRow> &rows, int days)
{
    RecordTable t = startTable(texts::expiryPrintTitle(days), QString(),
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("单位"), QStringLiteral("生产厂商"), QStringLiteral("仓库"),
            QStringLiteral("产品批号"), QStringLiteral("生产日期"), QStringLiteral("有效期至"),
            QStringLiteral("库存数量+") });
    for (const ExpiryRow &r : rows)
        addRow(t, r.id,
            { r.goods, r.goodsName, r.packing, r.unit, r.manufacturer, r.warehouseName, r.batch,
                r.produced, r.expiry, r.quantity });
    return t;
}

RecordTable restrictedTable(const QList<RestrictedRow> &rows)
{
    RecordTable t = startTable(texts::restrictedTitle(), QString(),
        { QStringLiteral("日期"), QStringLiteral("单据号"), QStringLiteral("单据类型"),
            QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("单位"), QStringLiteral("仓库"), QStringLiteral("往来单位"),
            QStringLiteral("入库单价"), QStringLiteral("入库数量+"), QStringLiteral("入库金额+"),
            QStringLiteral("出库单价"), QStringLiteral("出库数量+"), QStringLiteral("出库金额+"),
            QStringLiteral("处方说明"), QStringLiteral("姓名"), QStringLiteral("身份证号"),
            QStringLiteral("处方号码"), QStringLiteral("产品批号"), QStringLiteral("生产日期"),
            QStringLiteral("有效期至"), QStringLiteral("住址"), QStringLiteral("手机号码") });
    for (const RestrictedRow &r : rows)
        addRow(t, r.id,
            { r.date, r.number, r.kindText, r.goods, r.goodsName, r.packing, r.unit,
                r.warehouseName, r.partyName, r.inPrice, r.inQuantity, r.inAmount, r.outPrice,
                r.outQuantity, r.outAmount, r.instructions, r.patient, r.idCard,
                r.prescriptionNumber, r.batch, r.produced, r.expiry, r.address, r.mobile });
    return t;
}

RecordTable restrictedSummaryTable(const QList<RestrictedSummaryRow> &rows)
{
    RecordTable t = startTable(texts::restrictedSummaryTitle(), QString(),
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("单位"), QStringLiteral("期初数量+"), QStringLiteral("期初金额+"),
            QStringLiteral("入库数量+"), QStringLiteral("入库金额+"), QStringLiteral("出库数量+"),
            QStringLiteral("出库金额+"), QStringLiteral("帐面库存+"),
            QStringLiteral("库存金额+") });
    for (const RestrictedSummaryRow &r : rows)
        addRow(t, r.goods,
            { r.goods, r.goodsName, r.packing, r.unit, r.opening, r.openingAmount, r.inQuantity,
                r.inAmount, r.outQuantity, r.outAmount, r.ledgerStock, r.ledgerAmount });
    return t;
}

// The display check and the expiry tracking print their goods lines (clypjcjl, jxqjcjl, see
// filledLinesTable), not these tables of records: no printFields here.
RecordTable inspectionTable(const QList<InspectionRecord> &records)
{
    RecordTable t = startTable(texts::inspectionTitle(), QStringLiteral("clypjcjl"),
        { QStringLiteral("单据号"), QStringLiteral("检查日期"), QStringLiteral("仓库"),
            QStringLiteral("检查人"), QStringLiteral("店内温度"), QStringLiteral("店内湿度"),
            QStringLiteral("冷藏柜温度"), QStringLiteral("冷藏柜湿度"),
            QStringLiteral("阴凉柜温度"), QStringLiteral("阴凉柜湿度"),
            QStringLiteral("中药饮片数量"), QStringLiteral("生物制品数量"),
            QStringLiteral("养护药品数量"), QStringLiteral("近效期药品数量"),
            QStringLiteral("检查批次数+"), QStringLiteral("备注"), QStringLiteral("操作员") });
    for (const InspectionRecord &r : records) {
        const InspectionHeader &h = r.header;
        addRow(t, r.info.number,
            { r.info.number, r.info.date, r.info.warehouseName, r.info.employeeName,
                h.storeTemperature, h.storeHumidity, h.coldTemperature, h.coldHumidity,
                h.coolTemperature, h.coolHumidity, h.herbal.quantity, h.biological.quantity,
                h.maintained.quantity, h.nearExpiry.quantity, r.info.lineCount, r.info.note,
                r.info.operatorName });
    }
    return t;
}

RecordTable trackingTable(const QList<TrackingRecord> &records)
{
    RecordTable t = startTable(texts::trackingTitle(), QStringLiteral("jxqjcjl"),
        { QStringLiteral("单据号"), QStringLiteral("检查日期"), QStringLiteral("年"),
            QStringLiteral("月"), QStringLiteral("月序"), QStringLiteral("仓库"),
            QStringLiteral("核算单元"), QStringLiteral("保管账"), QStringLiteral("起始效期天数"),
            QStringLiteral("结束效期天数"), QStringLiteral("结单笔数+"), QStringLiteral("状态"),
            QStringLiteral("检查人"), QStringLiteral("备注"), QStringLiteral("操作员") });
    for (const TrackingRecord &r : records) {
        const TrackingHeader &h = r.header;
        addRow(t, r.info.number,
            { r.info.number, r.info.date, r.year, r.month, r.sequence, r.info.warehouseName,
                h.accountingUnit, h.keeper, h.fromDays, h.toDays, r.closedLines, h.state,
                r.info.employeeName, r.info.note, r.info.operatorName });
    }
    return t;
}

RecordTable filledLinesTable(FilledKind kind, const QList<FilledLine> &lines)
{
    RecordTable t = startTable(titleOf(kind),
        kind == FilledKind::Inspection ? QStringLiteral("clypjcjl") : QStringLiteral("jxqjcjl"),
        { QStringLiteral("单据号"), QStringLiteral("商品编号"), QStringLiteral("商品名称"),
            QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("生产厂商"),
            QStringLiteral("产品批号"), QStringLiteral("生产日期"), QStringLiteral("有效期至"),
            QStringLiteral("数量+"), QStringLiteral("质量状况"), QStringLiteral("处理情况"),
            QStringLiteral("检查日期"), QStringLiteral("操作员") });
    for (const FilledLine &l : lines)
        addRow(t, l.id,
            { l.number, l.goods, l.goodsName, l.packing, l.unit, l.manufacturer, l.batch,
                l.produced, l.expiry, l.quantity, l.quality, l.handling, l.date, l.operatorName });
    t.printFields = { QStringLiteral("gl_djh"), {}, QStringLiteral("g_name"),
        QStringLiteral("gg_name"), {}, {}, QStringLiteral("t_ph"), QStringLiteral("t_scrq"),
        QStringLiteral("t_yxq"), QStringLiteral("t_sl"), QStringLiteral("t_zlzk"),
        QStringLiteral("t_clqk"), QStringLiteral("rq"), QStringLiteral("a_name") };
    return t;
}

RecordTable temperatureTable(const QList<TemperatureRow> &rows)
{
    RecordTable t = startTable(texts::temperatureTitle(), QString(),
        { QStringLiteral("仓库"), QStringLiteral("日期"), QStringLiteral("时间"),
            QStringLiteral("温度(℃)"), QStringLiteral("湿度(%)"), QStringLiteral("采取的措施"),
            QStringLiteral("措施后温度"), QStringLiteral("措施后湿度"), QStringLiteral("记录员"),
            QStringLiteral("备注") });
    for (const TemperatureRow &r : rows)
        addRow(t, r.id,
            { r.warehouseName, r.date, r.time, r.temperature, r.humidity, r.measures,
                r.temperatureAfter, r.humidityAfter, r.recorder, r.note });
    return t;
}

RecordTable staffTable(const QList<StaffRow> &rows)
{
    RecordTable t = startTable(texts::staffTitle(), QStringLiteral("gspyghmc"),
        { QStringLiteral("编号"), QStringLiteral("姓名"), QStringLiteral("性别"),
            QStringLiteral("出生日期"), QStringLiteral("民族"), QStringLiteral("籍贯"),
            QStringLiteral("学历"), QStringLiteral("所学专业"), QStringLiteral("毕业时间"),
            QStringLiteral("职务"), QStringLiteral("岗位"), QStringLiteral("技术职称"),
            QStringLiteral("职业资格"), QStringLiteral("职业资格评定单位"),
            QStringLiteral("执业药师"), QStringLiteral("进本公司时间"),
            QStringLiteral("人事档案编号"), QStringLiteral("部门"), QStringLiteral("分店"),
            QStringLiteral("是否离职") });
    for (const StaffRow &r : rows) {
        const Employee &e = r.employee;
        addRow(t, e.code,
            { e.code, e.name, e.sex, e.born, e.nation, e.origin, e.education, e.major, e.graduated,
                e.duty, e.post, e.title, e.qualification, e.qualifiedBy, yesOrEmpty(e.pharmacist),
                e.joined, e.fileNumber, r.departmentName, r.branchName, yesOrEmpty(e.left) });
    }
    t.printFields = { QStringLiteral("u_sn"), QStringLiteral("u_name"), QStringLiteral("u_sex"),
        QStringLiteral("u_csrq"), {}, {}, QStringLiteral("u_xl"), QStringLiteral("u_zy"), {},
        QStringLiteral("u_duty"), QStringLiteral("u_gw"), QStringLiteral("u_jszc"),
        QStringLiteral("u_zyzg"), {}, QStringLiteral("u_isys"), QStringLiteral("u_gsny"),
        QStringLiteral("u_dabh"), QStringLiteral("de_name") };
    return t;
}

RecordTable planTable(const QList<PlanRow> &rows)
{
    RecordTable t = startTable(texts::plansTitle(), QStringLiteral("gspygpxjh"),
        { QStringLiteral("预定时间"), QStringLiteral("培训主题"), QStringLiteral("员工编号"),
            QStringLiteral("姓名"), QStringLiteral("培训目的"), QStringLiteral("培训内容"),
            QStringLiteral("地点"), QStringLiteral("讲师"), QStringLiteral("培训对象"),
            QStringLiteral("考核方式"), QStringLiteral("培训方式"), QStringLiteral("备注"),
            QStringLiteral("提交日期"), QStringLiteral("操作员") });
    for (const PlanRow &r : rows) {
        const Plan &p = r.plan;
        addRow(t, r.id,
            { p.planned, p.topic, r.employee, r.employeeName, p.purpose, p.content, p.place,
                p.teacher, p.audience, p.assessment, p.method, p.note, r.submitted,
                r.operatorName });
    }
    t.printFields
        = { QStringLiteral("u_ydsj"), QStringLiteral("u_pxzt"), {}, QStringLiteral("u_name"),
              QStringLiteral("u_pxmd"), QStringLiteral("u_pxnr"), QStringLiteral("u_dd"),
              QStringLiteral("u_js"), QStringLiteral("u_pxdx"), QStringLiteral("u_khfs") };
    return t;
}

RecordTable trainingTable(const QList<TrainingRow> &rows)
{
    RecordTable t = startTable(texts::trainingsTitle(), QStringLiteral("gspygpxjl"),
        { QStringLiteral("培训时间"), QStringLiteral("培训主题"), QStringLiteral("预定时间"),
            QStringLiteral("员工编号"), QStringLiteral("姓名"), QStringLiteral("培训表现"),
            QStringLiteral("考核结果"), QStringLiteral("成绩"), QStringLiteral("评定人"),
            QStringLiteral("备注"), QStringLiteral("操作员") });
    for (const TrainingRow &r : rows) {
        const Training &x = r.training;
        addRow(t, r.id,
            { x.held, r.topic, r.planned, r.employee, r.employeeName, x.performance, x.result,
                x.score, x.assessor, x.note, r.operatorName });
    }
    // The template's "岗位" (u_gw) has no column: a training row does not carry the post.
    t.printFields = { QStringLiteral("u_pxsj"), QStringLiteral("u_pxzt"), {}, {},
        QStringLiteral("u_name"), QStringLiteral("u_pxbx"), QStringLiteral("u_khjg"),
        QStringLiteral("u_cj"), QStringLiteral("u_pdr"), QStringLiteral("u_bz") };
    return t;
}

RecordTable categoryTable(const QList<Category> &rows)
{
    RecordTable t = startTable(texts::categoriesTitle(), QString(),
        { QStringLiteral("编号"), QStringLiteral("药品类型") });
    for (const Category &r : rows)
        addRow(t, r.id, { r.code, r.name });
    return t;
}

RecordTable pickableTable(const QList<PickableBatch> &batches)
{
    RecordTable t = startTable(QStringLiteral("药品批次"), QString(),
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("单位"), QStringLiteral("生产厂商"), QStringLiteral("药品类型"),
            QStringLiteral("产品批号"), QStringLiteral("生产日期"), QStringLiteral("有效期至"),
            QStringLiteral("批次库存"), QStringLiteral("仓库库存") });
    for (qsizetype i = 0; i < batches.size(); ++i) {
        const PickableBatch &b = batches[i];
        addRow(t, qint64(i),
            { b.goods, b.goodsName, b.packing, b.unit, b.manufacturer, b.category, b.batch,
                b.produced, b.expiry, b.quantity, b.warehouseStock });
    }
    return t;
}

RecordTable postedLinesTable(const QString &title, const QList<PostedLine> &lines)
{
    RecordTable t = startTable(title, QString(),
        { QStringLiteral("单据类型"), QStringLiteral("商品编号"), QStringLiteral("商品名称"),
            QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("数量+"),
            QStringLiteral("单价"), QStringLiteral("金额+"), QStringLiteral("产品批号"),
            QStringLiteral("生产日期"), QStringLiteral("有效期至"), QStringLiteral("仓库") });
    for (const PostedLine &l : lines)
        addRow(t, l.id,
            { l.kindText, l.goods, l.goodsName, l.packing, l.unit, l.quantity, l.price, l.amount,
                l.batch, l.produced, l.expiry, l.warehouseName });
    return t;
}

} // namespace medistock::gsp
