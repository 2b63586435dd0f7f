#include "ui/masterdata/registration.h"

#include "masterdata/kinds.h"
#include "ui/common/screenregistry.h"
#include "ui/masterdata/goodsscreen.h"

namespace medistock::ui {

void registerMasterDataScreens(ScreenRegistry &registry)
{
    const QString area = QStringLiteral("qtcz");
    registry.addTab(area, QStringLiteral("商品管理"),
        [](Workspace &workspace) { return new GoodsScreen(workspace); });
    const std::pair<const char *, const char *> lists[] = { { "供货商设置", "supplier" },
        { "客户设置", "customer" }, { "员工设置", "employee" }, { "仓库设置", "warehouse" } };
    for (const auto &[operation, key] : lists) {
        const masterdata::MasterKind *kind = masterdata::findMasterKind(QString::fromLatin1(key));
        registry.addTab(area, QString::fromUtf8(operation),
            [kind](Workspace &workspace) { return new MasterListScreen(workspace, *kind); });
    }
}

} // namespace medistock::ui
