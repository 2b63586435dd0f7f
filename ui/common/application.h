#pragma once

class QApplication;

namespace medistock::ui {

// Gives the application its name, icons, a font that renders Chinese, one style on every
// platform, and Qt's own Chinese texts for its standard buttons and dialogs.
void prepareApplication(QApplication &app);

} // namespace medistock::ui
