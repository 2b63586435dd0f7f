#!/usr/bin/env python3
"""Writes the report templates shipped in report/ (our .fr3 template format).

Every template is built here from a few layouts: a document form (company, title, party block,
a framed line table with page subtotals, totals with the amount in capitals, signatures), a
list report (title, filter line, framed columns, totals, page numbers), a voucher for single
records, a receipt roll for 80 mm and 58 mm paper, and price labels. Run it after changing a
layout and commit the templates it writes; the output is exactly what the engine's writer
writes, so reading and saving a shipped template changes nothing.

Usage: scripts/templates.py [FOLDER]   (default: report/ of the repository)
"""

import os
import sys

PX_PER_MM = 96 / 25.4


def px(mm):
    return mm * PX_PER_MM


def num(value):
    text = f"{value:.4f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


# ---------------------------------------------------------------------------------------------
# The file format as the engine writes it.


class Node:
    def __init__(self, tag, **attrs):
        self.tag = tag
        self.attrs = []
        self.children = []
        for key, value in attrs.items():
            self.set(key.replace("__", "."), value)

    def set(self, key, value):
        if isinstance(value, bool):
            value = "True" if value else "False"
        elif isinstance(value, float):
            value = num(value)
        elif isinstance(value, int):
            value = str(value)
        for i, (k, _) in enumerate(self.attrs):
            if k == key:
                self.attrs[i] = (key, value)
                return self
        self.attrs.append((key, value))
        return self

    def add(self, child):
        self.children.append(child)
        return child


def escape(value):
    out = []
    for c in value:
        out.append({"&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;", "\r": "&#13;",
                    "\n": "&#10;", "\t": "&#9;"}.get(c, c))
    return "".join(out)


def write(node, depth, out):
    out.append("  " * depth + "<" + node.tag)
    for key, value in node.attrs:
        out.append(f' {key}="{escape(value)}"')
    if not node.children:
        out.append("/>\n")
        return
    out.append(">\n")
    for child in node.children:
        write(child, depth + 1, out)
    out.append("  " * depth + f"</{node.tag}>\n")


def text_of(root):
    out = ['<?xml version="1.0" encoding="utf-8" standalone="no"?>\n']
    write(root, 0, out)
    return "".join(out)


# ---------------------------------------------------------------------------------------------
# Objects. Lengths are given in millimetres and written in pixels at 96 dpi.

SONG = "宋体"
HEI = "黑体"
GREY = "15263976"  # BGR of #E8E8E8, the fill of column captions


class Page:
    """Names objects uniquely and keeps the Top of the next band."""

    def __init__(self, report, name, width, height, margins, endless=False):
        self.report = report
        self.counter = 0
        self.next_top = 0.0
        self.width = width - margins[0] - margins[1]  # content width in mm
        self.node = Node("TfrxReportPage", Name=name, PaperWidth=float(width),
                         PaperHeight=float(height), LeftMargin=float(margins[0]),
                         RightMargin=float(margins[1]), TopMargin=float(margins[2]),
                         BottomMargin=float(margins[3]))
        if width > height:
            self.node.set("Orientation", "poLandscape")
        if endless:
            self.node.set("EndlessHeight", True)
        report.add(self.node)

    def name(self, prefix):
        self.report_counter = getattr(self.report, "counter", 0) + 1
        self.report.counter = self.report_counter
        return f"{prefix}{self.report_counter}"

    def band(self, tag, name, height, **attrs):
        band = Node(tag, Name=name, Left=0.0, Top=px(self.next_top), Width=px(self.width),
                    Height=px(height))
        for key, value in attrs.items():
            band.set(key.replace("__", "."), value)
        self.node.add(band)
        self.next_top += height + 6
        return Band(self, band)


class Band:
    def __init__(self, page, node):
        self.page = page
        self.node = node

    def memo(self, left, top, width, height, text, size=13, font=SONG, bold=False,
             align="haLeft", valign="vaCenter", frame=0, fill=None, fmt=None, wrap=False,
             stretch=None, hide_zeros=False, name=None):
        memo = Node("TfrxMemoView", Name=name or self.page.name("Memo"), Left=px(left),
                    Top=px(top), Width=px(width), Height=px(height))
        if fmt:
            kind, string = fmt
            memo.set("DisplayFormat.FormatStr", string)
            memo.set("DisplayFormat.Kind", kind)
        memo.set("Font.Charset", "134")
        memo.set("Font.Color", "0")
        memo.set("Font.Height", str(-size))
        memo.set("Font.Name", font)
        memo.set("Font.Style", "1" if bold else "0")
        if frame:
            memo.set("Frame.Typ", str(frame))
            memo.set("Frame.Width", "0.5")
        if fill:
            memo.set("Color", fill)
        if hide_zeros:
            memo.set("HideZeros", True)
        memo.set("HAlign", align)
        memo.set("ParentFont", False)
        if stretch:
            memo.set("StretchMode", stretch)
        memo.set("VAlign", valign)
        memo.set("WordWrap", wrap)
        memo.set("Text", text)
        self.node.add(memo)
        return memo

    def line(self, left, top, width, height=0.0, weight="0.5"):
        line = Node("TfrxLineView", Name=self.page.name("Line"), Left=px(left), Top=px(top),
                    Width=px(width), Height=px(height), Color="0")
        line.set("Frame.Typ", "4")
        line.set("Frame.Width", weight)
        self.node.add(line)
        return line

    def barcode(self, left, top, width, height, expression, bar_type="bcCode128",
                show_text=True):
        code = Node("TfrxBarCodeView", Name=self.page.name("BarCode"), Left=px(left),
                    Top=px(top), Width=px(width), Height=px(height), BarType=bar_type,
                    Expression=expression, Rotation="0", ShowText=show_text, Text="")
        self.node.add(code)
        return code


def new_report(title, variables, datasets=("Lines",)):
    report = Node("TfrxReport", Version="6.0", DotMatrixReport=False,
                  ScriptLanguage="PascalScript")
    report.set("ReportOptions.Name", title)
    report.set("ScriptText.Text", "begin\r\n\r\nend.")
    if datasets:
        sets = report.add(Node("Datasets"))
        for name in datasets:
            sets.add(Node("item", DataSet=name, DataSetName=name))
    values = report.add(Node("Variables"))
    for category, names in variables:
        values.add(Node("item", Name=" " + category))
        for name in names:
            values.add(Node("item", Name=name, Value="''"))
    report.add(Node("TfrxDataPage", Name="Data", Height="1000", Width="1000"))
    return report


def money(variable):
    """A money variable as text with thousands and two places."""
    return f"[FormatFloat('#,##0.00',{variable})]"


def field(name, dataset="Lines"):
    return f'[{dataset}."{name}"]'


def ref(name, dataset="Lines"):
    return f'<{dataset}."{name}">'


MONEY = ("fkNumeric", "%2.2n")
QTY = ("fkNumeric", "#,##0.##")
PRICE = ("fkNumeric", "#,##0.00##")

COMPANY = ("公司", ["comName", "comTele", "comLxr", "comAddress"])


class Col:
    """A column of a line table: caption, cell text, width in mm, alignment, format, sum."""

    def __init__(self, caption, text, width, align="haLeft", fmt=None, total=None, wrap=False):
        self.caption = caption
        self.text = text
        self.width = width
        self.align = align
        self.fmt = fmt
        self.total = total  # the field summed in the totals row, or None
        self.wrap = wrap


def fit(columns, width):
    """Shares what is left of the width among the wrapping columns, by their widths."""
    rest = width - sum(c.width for c in columns)
    growing = [c for c in columns if c.wrap] or [max(columns, key=lambda c: c.width)]
    base = sum(c.width for c in growing)
    for c in growing:
        c.width += rest * c.width / base
    return columns


def table_header(page, columns, height, size):
    header = page.band("TfrxHeader", "Header1", height, ReprintOnNewPage=True)
    left = 0.0
    for i, c in enumerate(columns, 1):
        header.memo(left, 0, c.width, height, c.caption, size=size, bold=True, align="haCenter",
                    frame=15, fill=GREY, name=f"Caption{i}")
        left += c.width
    return header


def table_rows(page, columns, height, size, fill_rows=None):
    attrs = dict(DataSet="Lines", DataSetName="Lines", Stretched=True)
    if fill_rows:
        attrs["FillRows"] = str(fill_rows)
    data = page.band("TfrxMasterData", "MasterData1", height, **attrs)
    left = 0.0
    for i, c in enumerate(columns, 1):
        data.memo(left, 0, c.width, height, c.text, size=size, align=c.align, frame=15,
                  fmt=c.fmt, wrap=c.wrap, stretch="smMaxHeight", name=f"Cell{i}")
        left += c.width
    return data


def totals_row(band, top, columns, height, size, caption, scope_total=True):
    """A framed row: the caption over the columns before the first sum, then the sums."""
    first = next((i for i, c in enumerate(columns) if c.total), len(columns))
    left = sum(c.width for c in columns[:first])
    band.memo(0, top, left, height, caption, size=size, bold=True, align="haCenter", frame=15,
              name="TotalCaption")
    for i, c in enumerate(columns[first:], first + 1):
        text = f"[SUM({ref(c.total)},MasterData1)]" if c.total else ""
        band.memo(left, top, c.width, height, text, size=size, align=c.align, frame=15,
                  fmt=c.fmt if c.total else None, bold=scope_total, name=f"Total{i}")
        left += c.width


# ---------------------------------------------------------------------------------------------
# Document forms.


class Form:
    """A document on A5 landscape, A4 portrait or 241 mm continuous paper."""

    PAPERS = {
        "A5": (210, 148, (8, 8, 7, 7)),
        "A4": (210, 297, (12, 12, 10, 10)),
        "241": (241, 140, (8, 8, 6, 6)),
    }

    def __init__(self, title, paper="A5", fill=True):
        self.title = title
        self.paper = paper
        self.fill = fill


def document(title, title_text, party, info, columns, summary, signatures, variables,
             paper="A5", fill=True, size=12):
    """party: list of (caption, variable) pairs for the first info row; info: the second row."""
    width, height, margins = Form.PAPERS[paper]
    report = new_report(title, variables)
    page = Page(report, "Page1", width, height, margins)
    w = page.width
    columns = fit(columns, w)
    row_h = 5.5
    head_h = 6.0

    # Page header: company, title and the document's particulars, on every page.
    info_rows = [party, info]
    header_h = 8 + 8 + 5.5 * len(info_rows) + 1
    header = page.band("TfrxPageHeader", "PageHeader1", header_h)
    header.memo(0, 0, w, 8, "[comName]", size=19, font=HEI, bold=True, align="haCenter",
                name="CompanyName")
    header.memo(0, 8, w, 8, title_text, size=17, font=HEI, align="haCenter",
                name="DocumentTitle")
    header.memo(w - 62, 9, 62, 6, "单号：[djh]", size=12, align="haRight", name="DocumentNumber")
    top = 16.5
    for row in info_rows:
        # The party's name and address are the longest: the first cell takes twice the room.
        weights = [2] + [1] * (len(row) - 1) if len(row) > 3 else [1] * len(row)
        left = 0.0
        for i, (caption, text) in enumerate(row):
            cell = w * weights[i] / sum(weights)
            header.memo(left, top, cell, 5.5, f"{caption}：{text}", size=size)
            left += cell
        top += 5.5

    table_header(page, columns, head_h, size)

    # Rows per page: what is left of the page once the header, the column captions and the page
    # footer are placed; the last page keeps room for the totals.
    footer_h = 6.0
    summary_h = 5.5 * (1 + len(summary)) + 7
    usable = height - margins[2] - margins[3] - header_h - head_h - footer_h
    rows = int((usable - summary_h) // row_h) if fill else None
    table_rows(page, columns, row_h, size, rows)

    end = page.band("TfrxReportSummary", "ReportSummary1", summary_h)
    totals_row(end, 0, columns, 5.5, size, "合    计")
    top = 5.5
    for r, line in enumerate(summary, 1):
        # The amount in capitals takes twice the room of the other cells.
        weights = [2 if "大写" in text else 1 for text in line]
        left = 0.0
        for i, text in enumerate(line, 1):
            cell = w * weights[i - 1] / sum(weights)
            end.memo(left, top, cell, 5.5, text, size=size, frame=15, name=f"Summary{r}_{i}")
            left += cell
        top += 5.5
    cell = w / len(signatures)
    for i, text in enumerate(signatures):
        end.memo(i * cell, top + 1.5, cell, 5.5, text, size=size)

    footer = page.band("TfrxPageFooter", "PageFooter1", footer_h)
    subtotal = next((c for c in columns if c.total and c.fmt == MONEY), None)
    if subtotal:
        footer.memo(0, 0.5, w / 2, 5, f"本页小计：[SUM({ref(subtotal.total)},MasterData1)]",
                    size=11, fmt=MONEY, name="PageTotal")
    footer.memo(w / 2, 0.5, w / 2, 5, "第[Page#]页 共[TotalPages#]页", size=11, align="haRight",
                name="PageNumber")
    return report


def no():
    return Col("序号", "[Line#]", 9, "haCenter")


def goods_name(width=40):
    return Col("商品名称", field("g_name"), width, wrap=True)


def packing_col(width=24):
    return Col("规格", field("gg_name"), width, wrap=True)


def unit_col():
    return Col("单位", field("dw_name"), 10, "haCenter")


def maker_col(width=26):
    return Col("生产厂商", field("g_sccs"), width, wrap=True)


def batch_cols():
    return [Col("批号", field("t_ph"), 18, "haCenter"),
            Col("有效期至", field("t_yxq"), 19, "haCenter")]


def qty(name, caption="数量"):
    return Col(caption, field(name), 15, "haRight", QTY, total=name)


def price(text, caption="单价"):
    return Col(caption, text, 16, "haRight", PRICE)


def amount(name, caption="金额"):
    return Col(caption, field(name), 20, "haRight", MONEY, total=name)


CUSTOMER = ("客户", ["khName", "khLxr", "khTele", "khAddress", "khNote"])
SUPPLIER = ("供货商", ["ghsName", "ghsLxr", "ghsTele", "ghsAddress"])


def sale_like(name, title, kind):
    """spxs, spxs2, spxs3, spxs4, xsth, xsth2, xsth4, xsd, xsd2."""
    sale = name.startswith("spxs")
    ret = name.startswith("xsth")
    prefix = "th_" if ret else "ls_"
    with_prices = kind != "4" and name != "xsd2"
    columns = [no(), goods_name(), packing_col(), unit_col()]
    if name != "spxs3":
        columns += batch_cols()
    if kind == "2":
        columns.append(price(field(prefix + "lsj"), "零售价"))
    if name == "spxs3" or not sale:
        columns.append(maker_col())
    columns.append(qty(prefix + "sl"))
    if with_prices:
        columns += [price(field("sj")), amount(prefix + "zje" if name != "spxs3" else "ls_zje")]
    party = [("客户", "[khName]"), ("联系人", "[khLxr]"), ("电话", "[khTele]"),
             ("日期", "[jhDate]")]
    info = [("地址", "[khAddress]"), ("仓库", "[ckName]"), ("业务员", "[uName]"),
            ("结算账户", "[Kmmc]")]
    if with_prices:
        summary = [("合计金额（大写）：[dxje]", f"￥{money('yf')}", "备注：[Note]")]
        if not name.startswith("xsd"):
            summary.append((f"本单应收：{money('yf')}", f"上次欠款：{money('khqk')}",
                            f"实收：{money('sf')}", f"累计欠款：{money('ljqkje')}"))
    else:
        summary = [("备注：[Note]",)]
    signatures = ["制单：[aName]", "审核：[checker]", "业务员：[uName]", "客户签收："]
    variables = [COMPANY, ("单据", ["djh", "jhDate", "ckName", "uName", "aName", "Kmmc", "Note",
                                    "checker", "chkrq", "yf", "sf", "dxje", "khqk", "ljqkje"]),
                 CUSTOMER]
    if sale:
        variables[1][1].extend(["gldjh2", "yunfei", "baozfei", "fpno", "xxyh", "xxyf", "xxsf",
                                "yf2"])
    paper = "A5" if sale else "241"
    return document(title, title, party, info, columns, summary, signatures, variables, paper)


def purchase_like(name, title):
    """cgjh, cgjh2, cgth, cgth2, cgd, cgd2, cgplan."""
    kind2 = name.endswith("2")
    if name.startswith("cgth"):
        q, p, a = "th_sl", f"[{ref('th_taxdj')}*{ref('th_dzl')}]", "th_zje"
    elif name == "cgplan":
        q, p, a = "cp_sl", field("cp_taxdj"), "cp_zje"
    else:
        q, p, a = "jh_sl", f"[{ref('jh_taxdj')}*{ref('jh_dzl')}]", "jh_zje"
    columns = [no(), goods_name(), packing_col(), unit_col(), maker_col()]
    if name not in ("cgd", "cgd2", "cgplan"):
        columns += batch_cols()
    columns.append(qty(q))
    if not kind2:
        columns += [price(p, "进价"), amount(a)]
    party = [("供货商", "[ghsName]"), ("联系人", "[ghsLxr]"), ("电话", "[ghsTele]"),
             ("日期", "[jhDate]")]
    info = [("地址", "[ghsAddress]"), ("仓库", "[ckName]"), ("经办人", "[uName]"),
            ("结算账户", "[Kmmc]")]
    summary = [("合计金额（大写）：[dxje]", f"￥{money('yf')}", f"实付：{money('sf')}")] \
        if not kind2 else []
    summary.append(("备注：[Note]",))
    signatures = ["制单：[aName]", "审核：[checker]", "经办人：[uName]", "仓库验收："]
    variables = [COMPANY, ("单据", ["djh", "jhDate", "ckName", "uName", "aName", "Kmmc", "Note",
                                    "checker", "chkrq", "yf", "sf", "dxje", "gldjh2", "xxyf",
                                    "xxsf"]), SUPPLIER]
    if name.startswith("cgjh"):
        variables[1][1].extend(["yunfei", "baozfei", "fpno", "xxyh"])
    return document(title, title, party, info, columns, summary, signatures, variables, "A4",
                    fill=False)


def transfer(name, title):
    columns = [no(), goods_name(), packing_col(), unit_col()] + batch_cols() + [qty("db_sl")]
    if name == "kcdbd2":
        columns += [price(field("g_sj"), "预设售价"), amount("sjje")]
    else:
        columns += [price(field("db_dj"), "成本价"), amount("db_zje")]
    party = [("调出仓库", "[ckOut]"), ("调入仓库", "[ckIn]"), ("日期", "[jhDate]")]
    info = [("经办人", "[uName]"), ("制单", "[aName]"), ("备注", "[Note]")]
    summary = [("按预设售价合计（大写）：[dxje]", f"￥{money('yf')}")]
    signatures = ["制单：[aName]", "审核：[checker]", "调出仓库：", "调入仓库："]
    variables = [COMPANY, ("单据", ["djh", "jhDate", "uName", "ckOut", "ckIn", "Note", "aName",
                                    "checker", "chkrq", "yf", "dxje"])]
    return document(title, title, party, info, columns, summary, signatures, variables, "A4",
                    fill=False)


def loss_overflow(name, title):
    columns = [no(), goods_name(), packing_col(), unit_col()] + batch_cols() + [qty("sl")]
    if name == "bsby":
        columns += [price(field("dj"), "成本价"), amount("zje")]
    party = [("仓库", "[ckName]"), ("日期", "[jhDate]"), ("经办人", "[uName]")]
    info = [("制单", "[aName]"), ("审核", "[checker]"), ("原因", "[dNote]")]
    signatures = ["制单：[aName]", "审核：[checker]", "质量负责人：", "仓库负责人："]
    variables = [COMPANY, ("单据", ["djh", "title", "jhDate", "aName", "ckName", "uName",
                                    "dNote", "checker", "chkrq"])]
    return document(title, "[title]", party, info, columns, [], signatures, variables, "A4",
                    fill=False)


def split_bundle(name, title):
    word = "拆分" if name.startswith("cfd") else "捆绑"
    p = "cf_" if name.startswith("cfd") else "kb_"
    columns = [no(), goods_name(), packing_col(), unit_col()] + batch_cols() + [qty(p + "sl")]
    if not name.endswith("2"):
        columns += [price(field(p + "dj"), "成本价"), amount(p + "zje")]
    party = [("仓库", "[ckName]"), ("日期", "[jhDate]"), ("经办人", "[uName]")]
    info = [(f"{word}商品", "[gName] [ggName]"), ("批号", "[tPh]"), ("数量", "[cfSl][dwName]")]
    if not name.endswith("2"):
        info.append(("成本", "[cfZje]"))
    signatures = ["制单：[aName]", "审核：", "经办人：[uName]"]
    variables = [COMPANY, ("单据", ["djh", "jhDate", "aName", "ckName", "uName", "gName", "gSn",
                                    "dwName", "ggName", "colorName", "tYxq", "tPh", "cfCbj",
                                    "cfSl", "cfZje", "cfNote", "tSccs"])]
    return document(title, title, party, info, columns, [("备注：[cfNote]",)], signatures,
                    variables, "A4", fill=False)


def stock_taking(title):
    columns = [no(), goods_name(), packing_col(), unit_col()] + batch_cols() + [
        qty("kc_sl", "帐面数"), qty("pd_sl", "实盘数"), qty("yksl", "盈亏数"),
        price(field("pd_dj"), "单价"), amount("pd_zje", "盈亏金额")]
    party = [("仓库", "[ckName]"), ("盘点日期", "[jhDate]"), ("经办人", "[uName]")]
    info = [("制单", "[aName]"), ("审核", "[checker]"), ("备注", "[Note]")]
    signatures = ["盘点人：", "复核人：", "制单：[aName]", "审核：[checker]"]
    variables = [COMPANY, ("单据", ["djh", "jhDate", "Note", "ckName", "uName", "aName",
                                    "checker", "chkrq"])]
    return document(title, title, party, info, columns, [], signatures, variables, "A4",
                    fill=False)


def loan(title):
    columns = [no(), goods_name(), packing_col(), unit_col()] + batch_cols() + [
        qty("jh_sl"), price(field("jh_dj")), amount("jh_zje"),
        Col("押金", field("jh_yj"), 16, "haRight", MONEY, total="jh_yj"),
        price(field("jh_zj"), "日租金")]
    party = [("客户", "[khName]"), ("联系人", "[khLxr]"), ("电话", "[khTele]"),
             ("日期", "[jhDate]")]
    info = [("地址", "[khAddress]"), ("仓库", "[ckName]"), ("经办人", "[uName]"),
            ("备注", "[Note]")]
    signatures = ["制单：[aName]", "经办人：[uName]", "客户签收："]
    variables = [COMPANY, ("单据", ["djh", "djName", "ckName", "jhDate", "Note", "uName",
                                    "aName"]), ("客户", ["khName", "khLxr", "khTele",
                                                         "khAddress"])]
    return document(title, "客户[djName]单", party, info, columns, [], signatures, variables,
                    "241")


def receiving(name, title):
    """cgrk and spck: warehouse notes with quantities only."""
    inward = name == "cgrk"
    q = "rk_sl" if inward else "ck_sl"
    columns = [no(), goods_name(), packing_col(), unit_col(), maker_col()] + batch_cols() + [
        qty(q, "入库数量" if inward else "出库数量")]
    who = ("供货商", "[ghsName]") if inward else ("客户", "[khName]")
    party = [who, ("仓库", "[ckName]"), ("日期", "[jhDate]")]
    info = [("经办人", "[uName]"), ("原单号", "[gldjh2]"), ("备注", "[Note]")]
    signatures = ["制单：[aName]", "审核：[checker]", "仓库管理员：", "经手人："]
    variables = [COMPANY, ("单据", ["djh", "jhDate", "ckName", "uName", "aName", "Note",
                                    "checker", "gldjh2"]),
                 ("往来", ["ghsName" if inward else "khName"])]
    return document(title, title, party, info, columns, [], signatures, variables, "A4",
                    fill=False)


# ---------------------------------------------------------------------------------------------
# Vouchers: one record, no lines.


def voucher(title, heading, rows, signatures, variables):
    report = new_report(title, [COMPANY] + variables, datasets=())
    page = Page(report, "Page1", 210, 148, (12, 12, 10, 10))
    w = page.width
    body_h = 8 + 9 + 8 * len(rows) + 12
    band = page.band("TfrxReportTitle", "ReportTitle1", body_h)
    band.memo(0, 0, w, 8, "[comName]", size=19, font=HEI, bold=True, align="haCenter")
    band.memo(0, 8, w, 8, heading, size=17, font=HEI, align="haCenter")
    band.memo(w - 70, 9, 70, 6, "单号：[djh]", size=12, align="haRight")
    top = 17.0
    for row in rows:
        cell = w / len(row)
        for i, (caption, text) in enumerate(row):
            band.memo(i * cell, top, 26 if caption else 0, 8, caption, size=13, bold=True,
                      frame=15, fill=GREY, align="haCenter")
            band.memo(i * cell + (26 if caption else 0), top, cell - (26 if caption else 0), 8,
                      text, size=13, frame=15, wrap=True)
        top += 8
    cell = w / len(signatures)
    for i, text in enumerate(signatures):
        band.memo(i * cell, top + 3, cell, 6, text, size=12)
    return report


# ---------------------------------------------------------------------------------------------
# List reports.


def listing(title, columns, filters="[filter]", landscape=True, variables=(), size=11,
            groups=None):
    width, height = (297, 210) if landscape else (210, 297)
    report = new_report(title, [COMPANY, ("报表", ["filter", "aName"] + list(variables))])
    page = Page(report, "Page1", width, height, (10, 10, 10, 10))
    w = page.width
    columns = fit(columns, w)
    head = page.band("TfrxPageHeader", "PageHeader1", 18)
    head.memo(0, 0, w, 9, f"[comName]  {title}", size=18, font=HEI, bold=True, align="haCenter")
    head.memo(0, 10, w * 0.7, 6, filters, size=11)
    head.memo(w * 0.7, 10, w * 0.3, 6, "打印日期：[Date]", size=11, align="haRight",
              fmt=("fkDateTime", "yyyy-mm-dd"))
    table_header(page, columns, 6.5, size)
    table_rows(page, columns, 5.5, size)
    if any(c.total for c in columns):
        end = page.band("TfrxReportSummary", "ReportSummary1", 6)
        totals_row(end, 0, columns, 6, size, "合计：[COUNT(MasterData1)]条")
    foot = page.band("TfrxPageFooter", "PageFooter1", 6)
    foot.memo(0, 0.5, w / 2, 5, "制表：[aName]", size=10)
    foot.memo(w / 2, 0.5, w / 2, 5, "第[Page#]页 共[TotalPages#]页", size=10, align="haRight")
    return report


def C(caption, name, width, kind="text", total=False):
    align, fmt = "haLeft", None
    if kind == "qty":
        align, fmt = "haRight", QTY
    elif kind == "money":
        align, fmt = "haRight", MONEY
    elif kind == "price":
        align, fmt = "haRight", PRICE
    elif kind == "center":
        align = "haCenter"
    return Col(caption, field(name), width, align, fmt, total=name if total else None,
               wrap=kind == "wrap")


# ---------------------------------------------------------------------------------------------
# Receipt rolls.


def receipt(title, paper, header_rows, columns, footer_rows, variables, lines=True):
    """A roll of 80 or 58 mm: as long as what is printed on it."""
    margin = 2 if paper == 58 else 3
    report = new_report(title, [COMPANY] + variables, datasets=("Lines",) if lines else ())
    page = Page(report, "Page1", paper, 200, (margin, margin, 3, 5), endless=True)
    w = page.width
    size = 11 if paper == 58 else 12
    row = 4.2
    top_h = 7 + row * len(header_rows) + 1
    head = page.band("TfrxReportTitle", "ReportTitle1", top_h)
    head.memo(0, 0, w, 7, "[comName]", size=size + 4, font=HEI, bold=True, align="haCenter")
    top = 7.0
    for text in header_rows:
        head.memo(0, top, w, row, text, size=size, wrap=True,
                  align="haCenter" if text.startswith("【") else "haLeft")
        top += row
    head.line(0, top_h - 0.5, w)
    if lines:
        caps = page.band("TfrxHeader", "Header1", row)
        data = page.band("TfrxMasterData", "MasterData1", 2 * row, DataSet="Lines",
                         DataSetName="Lines", Stretched=True)
        data.memo(0, 0, w, row, columns[0][1], size=size, wrap=True, stretch="smActualHeight")
        left = 0.0
        rest = columns[1:]
        total_w = sum(c[2] for c in rest)
        for caption, text, share, align, fmt in rest:
            cw = w * share / total_w
            caps.memo(left, 0, cw, row, caption, size=size, align=align)
            data.memo(left, row, cw, row, text, size=size, align=align, fmt=fmt)
            left += cw
    foot_h = row * len(footer_rows) + 2
    end = page.band("TfrxReportSummary", "ReportSummary1", foot_h)
    end.line(0, 0.5, w)
    top = 1.5
    for text in footer_rows:
        end.memo(0, top, w, row, text, size=size, wrap=True,
                 align="haCenter" if text.startswith("【") or text.startswith("谢谢") else "haLeft")
        top += row
    return report


# ---------------------------------------------------------------------------------------------
# Price labels: three across, 64 x 38 mm each.


def price_labels(title):
    report = new_report(title, [COMPANY])
    page = Page(report, "Page1", 210, 297, (9, 9, 10, 10))
    label_w, label_h = 64.0, 38.0
    data = page.band("TfrxMasterData", "MasterData1", label_h, DataSet="Lines",
                     DataSetName="Lines", Columns="3", ColumnWidth=px(label_w + 0.0))
    data.memo(1, 1, label_w - 4, label_h - 2, "", frame=15)
    data.memo(2, 2, label_w - 6, 7, field("g_name"), size=15, font=HEI, bold=True,
              align="haCenter")
    data.memo(2, 9.5, label_w - 6, 5, "规格：" + field("gg_name"), size=11)
    data.memo(2, 14, label_w - 6, 5, "产地：" + field("g_sccs"), size=11)
    data.memo(2, 18.5, 30, 5, "单位：" + field("dw_name"), size=11)
    data.memo(2, 24, 30, 10, f"￥[FormatFloat('0.00',{ref('g_lsj')})]", size=22, font=HEI,
              bold=True)
    data.barcode(33, 22, 28, 11, ref("g_sptm"), "bcCodeEAN13")
    data.memo(2, 33.5, label_w - 6, 3.5, "[comName]", size=9, align="haRight")
    return report


# ---------------------------------------------------------------------------------------------
# The catalogue of templates.


def templates():
    t = {}
    for name, title, kind in [
        ("spxs", "销售单", ""), ("spxs2", "销售单(含零售价)", "2"),
        ("spxs3", "销售单(商品合并)", ""), ("spxs4", "销售单(不含售价)", "4"),
        ("xsth", "销售退货单", ""), ("xsth2", "销售退货单(含零售价)", "2"),
        ("xsth4", "销售退货单(不含售价)", "4"), ("xsd", "销售订单", ""),
        ("xsd2", "销售订单(不含售价)", "4"), ("xshh", "顾客退货单", "")]:
        heading = title.split("(")[0]
        t[name] = sale_like(name if name != "xshh" else "xsth", heading, kind)
    for name, title in [("cgjh", "采购进货单"), ("cgjh2", "采购进货单"), ("cgth", "采购退货单"),
                        ("cgth2", "采购退货单"), ("cgd", "采购订单"), ("cgd2", "采购订单"),
                        ("cgplan", "采购计划单")]:
        t[name] = purchase_like(name, title)
    t["kcdbd"] = transfer("kcdbd", "库存调拨单")
    t["kcdbd2"] = transfer("kcdbd2", "库存调拨单")
    t["bsby"] = loss_overflow("bsby", "商品报损报溢单")
    t["bsby2"] = loss_overflow("bsby2", "商品报损报溢单")
    for name in ("cfd", "cfd2"):
        t[name] = split_bundle(name, "商品拆分单")
    for name in ("kbd", "kbd2"):
        t[name] = split_bundle(name, "商品捆绑单")
    t["kcpdd"] = stock_taking("库存盘点单")
    t["khjh"] = loan("客户借货单")
    t["cgrk"] = receiving("cgrk", "商品入库单")
    t["spck"] = receiving("spck", "商品出库单")
    t.update(vouchers())
    t.update(lists())
    t.update(receipts())
    t["goodsprice"] = price_labels("商品标价签")
    return t


def vouchers():
    t = {}
    party_vars = ("单据", ["djh", "jhDate", "partyName", "je", "dxje", "fkfs", "Note", "uName",
                           "aName", "checker", "gldjh2"])
    for name, title, who, what in [
        ("khsk", "客户付款单", "客户", "付款金额"),
        ("ysyfskd", "客户收款单", "客户", "收款金额"),
        ("ysyfysk", "客户欠款单", "客户", "欠款金额"),
        ("ghsfukuan", "供货商付款单", "供货商", "付款金额"),
        ("ysyffkd", "供货商付款单", "供货商", "付款金额"),
        ("ysyfyfk", "欠款单", "供货商", "欠款金额")]:
        t[name] = voucher(title, title, [
            [(who, "[partyName]"), ("日期", "[jhDate]")],
            [(what, "[FormatFloat('#,##0.00',je)]"), ("大写", "[dxje]")],
            [("账户", "[fkfs]"), ("原单号", "[gldjh2]")],
            [("备注", "[Note]")]],
            ["制单：[aName]", "审核：[checker]", "经办人：[uName]", f"{who}签字："],
            [party_vars])
    t["fyd"] = voucher("费用、收入单", "[fyTitle]", [
        [("类型", "[fyLx]"), ("日期", "[jhDate]")],
        [("金额", "[FormatFloat('#,##0.00',je)]"), ("大写", "[dxje]")],
        [("部门", "[deName]"), ("账户", "[fkfs]")],
        [("备注", "[Note]")]],
        ["制单：[aName]", "审核：[checker]", "经办人：[uName]", "领款人："],
        [("单据", ["djh", "fyTitle", "fyLx", "jhDate", "je", "dxje", "deName", "fkfs", "Note",
                   "uName", "aName", "checker"])])
    t["xjyhd"] = voucher("现金银行出入款单", "[xjTitle]", [
        [("类型", "[xjLx]"), ("日期", "[jhDate]")],
        [("金额", "[FormatFloat('#,##0.00',je)]"), ("大写", "[dxje]")],
        [("账户", "[fkfs]"), ("往来单位", "[partyName]")],
        [("备注", "[Note]")]],
        ["制单：[aName]", "审核：[checker]", "经办人：[uName]", "出纳："],
        [("单据", ["djh", "xjTitle", "xjLx", "jhDate", "je", "dxje", "fkfs", "partyName",
                   "Note", "uName", "aName", "checker"])])
    t["hyxf"] = voucher("会员充值单", "会员充值单", [
        [("会员卡号", "[hybh]"), ("会员姓名", "[hyname]")],
        [("充值金额", "[FormatFloat('#,##0.00',je)]"), ("大写", "[dxje]")],
        [("赠送金额", "[zsje]"), ("卡内余额", "[hyye]")],
        [("日期", "[jhDate]"), ("收款方式", "[fkfs]")],
        [("备注", "[Note]")]],
        ["收银员：[aName]", "会员签字："],
        [("单据", ["djh", "hybh", "hyname", "je", "dxje", "zsje", "hyye", "jhDate", "fkfs",
                   "Note", "aName"])])
    return t


def lists():
    t = {}
    goods = [C("商品编号", "g_sn", 20), C("商品名称", "g_name", 40, "wrap"),
             C("规格", "gg_name", 26, "wrap"), C("单位", "dw_name", 10, "center")]
    t["kccx"] = listing("库存查询表", [C("仓库", "ck_name", 22)] + goods + [
        C("生产厂商", "g_sccs", 34, "wrap"), C("批号", "t_ph", 18, "center"),
        C("有效期至", "t_yxq", 19, "center"), C("库存数量", "kc_sl", 18, "qty", True),
        C("成本价", "kc_cbj", 17, "price"), C("库存金额", "kc_je", 22, "money", True)])
    t["kcbd"] = listing("库存变动情况", [
        C("仓库", "ck_name", 18), C("日期", "rq", 19, "center"), C("单据类型", "djlx", 20),
        C("单据号", "gl_djh", 28), C("往来单位", "wldw", 34, "wrap"), C("批号", "t_ph", 16),
        C("有效期至", "t_yxq", 19, "center"), C("入库数量", "rk_sl", 16, "qty", True),
        C("出库数量", "ck_sl", 16, "qty", True), C("单价", "dj", 15, "price"),
        C("金额", "je", 18, "money"), C("结存数量", "jc_sl", 16, "qty"),
        C("结存均价", "jc_dj", 15, "price"), C("结存金额", "jc_je", 20, "money")])
    doc = [C("单据号", "gl_djh", 28), C("日期", "rq", 19, "center")]
    t["xsthmxb"] = listing("销售退货明细表", doc + [C("客户", "kh_name", 30, "wrap")] + goods[1:]
                           + [C("批号", "t_ph", 16), C("数量", "sl", 14, "qty", True),
                              C("单价", "dj", 15, "price"), C("金额", "je", 20, "money", True),
                              C("业务员", "u_name", 14)])
    t["jthmxb"] = listing("进退货明细表", doc + [C("类型", "djlx", 14, "center"),
                                                 C("供货商", "ghs_name", 30, "wrap")] + goods[1:]
                          + [C("批号", "t_ph", 16), C("数量", "sl", 14, "qty", True),
                             C("进价", "dj", 15, "price"), C("金额", "je", 20, "money", True)])
    t["khjhdjb"] = listing("客户借货单据表", doc + [
        C("类型", "djlx", 12, "center"), C("客户", "kh_name", 36, "wrap"),
        C("仓库", "ck_name", 22), C("经办人", "u_name", 16), C("数量", "sl", 16, "qty", True),
        C("金额", "je", 20, "money", True), C("押金", "yj", 18, "money", True),
        C("状态", "zt", 14, "center"), C("备注", "note", 30, "wrap")])
    t["khjhmxb"] = listing("客户借货明细表", doc + [C("客户", "kh_name", 28, "wrap")] + goods[1:]
                           + [C("借货数", "jh_sl", 14, "qty", True),
                              C("已还数", "jh_hhsl", 14, "qty", True),
                              C("已销数", "jh_xssl", 14, "qty", True),
                              C("未还数", "wh_sl", 14, "qty", True),
                              C("押金", "jh_yj", 16, "money", True)])
    ledger = [C("日期", "k_rq", 20, "center"), C("单据号", "gl_djh", 30),
              C("单据类型", "k_djtxt", 26), C("应收金额", "k_yfje", 24, "money", True),
              C("实收金额", "k_sfje", 24, "money", True), C("欠款余额", "k_ljje", 24, "money"),
              C("账户", "k_fkfs", 20), C("业务员", "u_name", 16), C("备注", "k_note", 30, "wrap")]
    t["khdzd"] = listing("客户对帐单", ledger, "客户：[partyName]    [filter]",
                         variables=["partyName"])
    t["ghsdzd"] = listing("供货商对帐单", [
        c if c.caption not in ("应收金额", "实收金额") else
        C("应付金额" if c.caption == "应收金额" else "实付金额", c.total, 24, "money", True)
        for c in ledger], "供货商：[partyName]    [filter]", variables=["partyName"])
    t["khdzmxb"] = listing("客户对帐明细表", doc + [C("客户", "kh_name", 28, "wrap")]
                           + goods[1:] + [C("数量", "sl", 14, "qty", True),
                                          C("单价", "dj", 15, "price"),
                                          C("金额", "je", 20, "money", True)],
                           "客户：[partyName]    [filter]", variables=["partyName"])
    for name, title, party in [("yskmxb", "应收款单据表", "客户"),
                               ("yfkmxb", "应付款单据表", "供货商")]:
        t[name] = listing(title, doc + [C(party, "party_name", 40, "wrap"),
                                        C("单据类型", "k_djtxt", 26),
                                        C("金额", "k_yfje", 24, "money", True),
                                        C("已收付", "k_sfje", 24, "money", True),
                                        C("账户", "k_fkfs", 22), C("经办人", "u_name", 16),
                                        C("审核", "k_checker", 16), C("备注", "k_note", 30, "wrap")])
    for name, title, party in [("yskglmxb", "应收款明细表", "客户"),
                               ("yfkglmxb", "应付款明细表", "供货商")]:
        t[name] = listing(title, [C(party + "编号", "party_sn", 20),
                                  C(party + "名称", "party_name", 44, "wrap")] + ledger[:7])
    for name, title in [("fpcgmxb", "进货发票明细表"), ("fpxsmxb", "销售发票明细表")]:
        t[name] = listing(title, doc + [C("往来单位", "party_name", 40, "wrap"),
                                        C("单据类型", "fp_djtxt", 24),
                                        C("应开票金额", "fp_yfje", 24, "money", True),
                                        C("已开票金额", "fp_kpje", 24, "money", True),
                                        C("发票号码", "fp_no", 26), C("开票日期", "fp_kprq", 20),
                                        C("余额", "fp_ljje", 22, "money")])
    gsp = [C("日期", "rq", 19, "center"), C("单据号", "gl_djh", 28)]
    t["gspysjl"] = listing("药品验收记录", [
        C("到货日期", "j_jhrq", 19, "center"), C("供货单位", "ghs_name", 28, "wrap"),
        C("商品名称", "g_name", 30, "wrap"), C("规格", "gg_name", 20, "wrap"),
        C("剂型", "g_yjlx", 12), C("批准文号", "color_name", 24, "wrap"),
        C("批号", "t_ph", 16), C("有效期至", "t_yxq", 18, "center"),
        C("数量", "jh_sl", 13, "qty"), C("验收结果", "ysjg", 13, "center"),
        C("包装", "bzjc", 11, "center"), C("合格证", "hgz", 11, "center"),
        C("处理", "clyj", 11, "center"), C("验收人", "j_checker", 14)])
    t["gspyfgljl"] = listing("药方管理记录", [
        C("销售日期", "ls_xsrq", 19, "center"), C("顾客", "kh_name", 24, "wrap"),
        C("商品名称", "g_name", 34, "wrap"), C("规格", "gg_name", 22, "wrap"),
        C("剂型", "g_yjlx", 12), C("批准文号", "g_zczh", 26, "wrap"),
        C("数量", "ls_sl", 14, "qty"), C("处方号码", "t_cfhm", 22), C("处方说明", "t_cfsm", 30, "wrap"),
        C("审核人", "ls_checker", 16)])
    t["gspcfxsjl"] = listing("处方药销售记录", [
        C("销售日期", "ls_xsrq", 19, "center"), C("顾客姓名", "ls_xm", 18),
        C("身份证号", "ls_cardno", 32), C("商品名称", "g_name", 32, "wrap"),
        C("规格", "gg_name", 20, "wrap"), C("批号", "t_ph", 16), C("数量", "ls_sl", 13, "qty"),
        C("处方号码", "t_cfhm", 22), C("药师", "t_yaoshi", 14), C("仓库", "ck_name", 18),
        C("审核人", "ls_checker", 14)])
    t["clypjcjl"] = listing("陈列药品维护检查记录", gsp + [
        C("商品名称", "g_name", 36, "wrap"), C("规格", "gg_name", 22, "wrap"),
        C("批号", "t_ph", 16), C("生产日期", "t_scrq", 18, "center"),
        C("有效期至", "t_yxq", 18, "center"), C("数量", "t_sl", 14, "qty"),
        C("质量状况", "t_zlzk", 18), C("处理情况", "t_clqk", 24, "wrap"),
        C("检查人", "a_name", 14)])
    t["jxqjcjl"] = listing("近效期药品跟踪记录", gsp + [
        C("商品名称", "g_name", 36, "wrap"), C("规格", "gg_name", 22, "wrap"),
        C("批号", "t_ph", 16), C("有效期至", "t_yxq", 18, "center"),
        C("数量", "t_sl", 14, "qty", True), C("质量状况", "t_zlzk", 18),
        C("处理情况", "t_clqk", 30, "wrap"), C("跟踪人", "a_name", 14)])
    t["ypcljl"] = listing("药品拆零记录", [
        C("日期", "gl_kdrq", 19, "center"), C("单据号", "gl_djh", 28),
        C("商品名称", "g_name", 36, "wrap"), C("规格", "gg_name", 22, "wrap"),
        C("批号", "t_ph", 16), C("有效期至", "t_yxq", 18, "center"),
        C("拆零进货数", "jh_sl", 18, "qty", True), C("拆零销售数", "xs_sl", 18, "qty", True),
        C("批次结存", "t_sl", 16, "qty"), C("复核人", "fhr", 20)])
    t["gspyghmc"] = listing("员工花名册", [
        C("编号", "u_sn", 16), C("姓名", "u_name", 16), C("性别", "u_sex", 10, "center"),
        C("出生日期", "u_csrq", 19, "center"), C("学历", "u_xl", 14), C("专业", "u_zy", 22),
        C("职务", "u_duty", 16), C("岗位", "u_gw", 18), C("技术职称", "u_jszc", 20),
        C("职业资格", "u_zyzg", 22), C("执业药师", "u_isys", 14, "center"),
        C("进公司时间", "u_gsny", 19, "center"), C("部门", "de_name", 18),
        C("档案编号", "u_dabh", 20)])
    t["gspygpxjh"] = listing("员工培训计划", [
        C("预定时间", "u_ydsj", 19, "center"), C("培训主题", "u_pxzt", 34, "wrap"),
        C("培训目的", "u_pxmd", 30, "wrap"), C("培训内容", "u_pxnr", 44, "wrap"),
        C("地点", "u_dd", 18), C("讲师", "u_js", 14), C("培训对象", "u_pxdx", 22, "wrap"),
        C("考核方式", "u_khfs", 16), C("员工", "u_name", 14)])
    t["gspygpxjl"] = listing("员工培训记录", [
        C("培训时间", "u_pxsj", 19, "center"), C("员工", "u_name", 16),
        C("岗位", "u_gw", 18), C("培训主题", "u_pxzt", 40, "wrap"),
        C("培训表现", "u_pxbx", 30, "wrap"), C("考核结果", "u_khjg", 20),
        C("成绩", "u_cj", 12, "center"), C("评定人", "u_pdr", 14), C("备注", "u_bz", 30, "wrap")])
    pos = [C("商品编号", "g_sn", 20), C("商品名称", "gname", 50, "wrap")]
    t["postj"] = listing("POS商品销售统计", pos + [
        C("单位", "dw_name", 12, "center"), C("销售数量", "sl", 24, "qty", True),
        C("销售金额", "zje", 28, "money", True)], landscape=False)
    t["posmxb"] = listing("POS商品销售明细", [
        C("销售时间", "pos_xsrq", 30), C("单据号", "gl_djh", 28)] + pos + [
        C("数量", "pos_sl", 14, "qty", True), C("单价", "pos_dj", 15, "price"),
        C("金额", "pos_zje", 20, "money", True), C("成本", "pos_zcb", 20, "money", True),
        C("毛利", "lr", 20, "money", True), C("收银员", "a_name", 14)])
    t["poslsz"] = listing("POS销售流水账", [
        C("销售时间", "pos_xsrq", 32), C("单据号", "gl_djh", 28),
        C("会员卡号", "hy_bh", 22), C("会员", "hy_name", 18),
        C("应收金额", "pos_yfje", 22, "money", True), C("实收金额", "pos_sfje", 22, "money", True),
        C("现金", "pos_xj", 18, "money", True), C("储值卡", "pos_czk", 18, "money", True),
        C("银行卡", "pos_yhk", 18, "money", True), C("医保卡", "pos_djq", 18, "money", True),
        C("微信", "pos_wxje", 18, "money", True), C("支付宝", "pos_zfbje", 18, "money", True),
        C("收银员", "a_name", 14)])
    t["poscrk"] = listing("POS出入款", [
        C("日期", "crk_rq", 30), C("单据号", "gl_djh", 30), C("类型", "lx", 20, "center"),
        C("入款金额", "rkje", 24, "money", True), C("出款金额", "ckje", 24, "money", True),
        C("经办人", "a_name", 18), C("备注", "crk_note", 40, "wrap")], landscape=False)
    rank = [C("销售数量", "sl", 22, "qty", True), C("销售金额", "zje", 26, "money", True),
            C("销售利润", "lr", 24, "money", True), C("利润率%", "lrl", 18, "price")]
    t["possxph1"] = listing("POS销售排行(按商品)", [C("名次", "mc", 12, "center")] + pos + rank,
                            landscape=False)
    t["possxph2"] = listing("POS销售排行(按类别)", [C("名次", "mc", 12, "center"),
                                                   C("类别编号", "gc_sn", 22),
                                                   C("商品类别", "gcname", 40)] + rank,
                            landscape=False)
    t["possxph3"] = listing("POS销售排行(按收银员)", [C("名次", "mc", 12, "center"),
                                                     C("收银员", "a_name", 40)] + rank,
                            landscape=False)
    t["possytj1"] = listing("收银员收银统计", [
        C("编号", "sn", 20), C("收银员", "a_name", 40), C("应收金额", "yfje", 40, "money", True),
        C("实收金额", "sfje", 40, "money", True)], landscape=False)
    # An employee's kinds count the same sales again (101 and 1001, 201 and 2001): only the
    # commission itself adds up.
    t["possytj2"] = listing("POS销售提成", [
        C("编号", "g_sn", 18), C("员工", "hz_txt1", 20), C("统计类别", "hz_txt2", 38),
        C("销售金额", "hz_kc", 24, "money"), C("可提成金额", "hz_kczje", 24, "money"),
        C("销售毛利", "hz_rksl", 24, "money"), C("可提成毛利", "hz_rkzje", 24, "money"),
        C("提成数量", "hz_cksl", 18, "qty"), C("提成金额", "hz_ckzje", 24, "money", True)])
    return t


def receipts():
    t = {}
    goods_cols = [("商品", f"{field('g_name')}{field('t_zp')}", 0, "haLeft", None),
                  ("数量", f"{field('pos_sl')}{field('dw_name')}", 2, "haLeft", None),
                  ("单价", field("zhdj"), 2, "haRight", PRICE),
                  ("金额", field("pos_zje"), 3, "haRight", MONEY)]
    pos_vars = [("单据", ["djh", "sTitle", "jhDate", "aName", "ckName", "Note", "yf", "sf",
                          "zlje", "mlje", "yhje", "dxje", "hybh", "hyname", "hyye", "hyjf",
                          "hymobile"])]
    for name, paper in (("posxp", 80), ("posxp58", 58)):
        t[name] = receipt("POS小票", paper,
                          ["【[sTitle]】", "单号：[djh]", "时间：[jhDate]", "收银员：[aName]"],
                          goods_cols,
                          ["应收：[FormatFloat('0.00',yf)]  实收：[FormatFloat('0.00',sf)]",
                           "找零：[FormatFloat('0.00',zlje)]  优惠：[FormatFloat('0.00',yhje)]",
                           "[IIF(hybh<>'','会员：'+hybh+' '+hyname,'非会员')]",
                           "[IIF(hybh<>'','卡内余额：'+hyye+'  积分：'+hyjf,'')]",
                           "[comAddress]", "电话：[comTele]", "谢谢惠顾，欢迎再次光临！"],
                          pos_vars)
    jb_vars = [("交班", ["jbTime", "jbCurrUser", "jbNextUser", "bbskzje", "sjyyk", "xfyyk",
                         "jjzje", "jbNote"])]
    for name, paper in (("jbxp", 80), ("jbxp58", 58)):
        t[name] = receipt("POS交班小票", paper,
                          ["【交班小票】", "交班时间：[jbTime]", "交班人：[jbCurrUser]",
                           "接班人：[jbNextUser]"], [],
                          ["本班收款总额：[bbskzje]", "上交营业款：[sjyyk]",
                           "下放营业款：[xfyyk]", "交接金额：[jjzje]", "备注：[jbNote]",
                           "交班人签字：", "接班人签字："], jb_vars, lines=False)
    cashier_cols = [("单据号", field("gl_djh"), 0, "haLeft", None),
                    ("时间", field("sj"), 3, "haLeft", None),
                    ("应收", field("pos_yfje"), 2, "haRight", MONEY),
                    ("实收", field("pos_sfje"), 2, "haRight", MONEY)]
    for name, paper in (("possyymx", 80), ("possyymx58", 58)):
        t[name] = receipt("POS收银员明细", paper,
                          ["【收银员明细】", "收银员：[aName]", "时间：[filter]"], cashier_cols,
                          [f"单数：[COUNT(MasterData1)]",
                           f"应收合计：[FormatFloat('0.00',SUM({ref('pos_yfje')},MasterData1))]",
                           f"实收合计：[FormatFloat('0.00',SUM({ref('pos_sfje')},MasterData1))]",
                           "打印时间：[Date] [Time]"],
                          [("报表", ["aName", "filter"])])
    # The A4 reprint of a POS document.
    columns = [no(), Col("商品名称", field("g_name") + field("t_zp"), 50, wrap=True),
               Col("规格", field("gg_name"), 30, wrap=True), unit_col(),
               Col("批号", field("t_ph"), 20, "haCenter"), qty("pos_sl"),
               price(field("zhdj"), "折后单价"), amount("pos_zje")]
    t["posxsd"] = document("POS销售退货单", "[sTitle]",
                           [("会员卡号", "[hybh]"), ("会员", "[hyname]"), ("时间", "[jhDate]")],
                           [("收银员", "[aName]"), ("仓库", "[ckName]"), ("手机", "[hymobile]")],
                           columns, [("合计金额（大写）：[dxje]", f"应收：{money('yf')}",
                                      f"实收：{money('sf')}"),
                                     ("卡内余额：[hyye]", "累计积分：[hyjf]", "备注：[Note]")],
                           ["收银员：[aName]", "顾客签字："], [COMPANY] + pos_vars, "A5")
    return t


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(os.path.abspath(__file__)), "..", "report")
    os.makedirs(folder, exist_ok=True)
    for name, root in sorted(templates().items()):
        with open(os.path.join(folder, name + ".fr3"), "w", encoding="utf-8", newline="") as f:
            f.write(text_of(root))


if __name__ == "__main__":
    main()
