#pragma once
// The one look of the program: an explicit palette, so that a dark desktop
// theme leaves the windows readable, and one style sheet with roles
// (role="heading", role="primary", ...) and an accent per subject (the
// subject's window body carries subject="astrology" and so on).
#include <QPalette>
#include <QString>

class QApplication;
class QWidget;

namespace quillane::ui::theme {

QPalette Palette();
QString StyleSheet();
// Gives the application the palette and the style sheet.
void Apply(QApplication& app);
// Marks a window body as a subject's, for its accent.
void SetSubject(QWidget* body, const char* subject);

} // namespace quillane::ui::theme
