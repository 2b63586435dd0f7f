#pragma once

#include "core/interaction.h"

class QMessageBox;

namespace medistock::ui {

// The desktop's way of telling and asking: a box titled "系统提示" with the information icon
// over the active window; questions offer 是/否 with 否 as the default.
class MessageBoxInteraction : public core::Interaction
{
public:
    void inform(const QString &text) override;
    bool ask(const QString &text) override;
};

} // namespace medistock::ui
