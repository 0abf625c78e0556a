#pragma once
// The one look of the program: an explicit palette, so that a dark desktop
// theme leaves the windows readable, one style sheet with roles
// (role="heading", role="primary", ...), and an accent per subject (the
// subject's window carries subject="astrology" and so on, and the accent's
// own sheet).
#include <QPalette>
#include <QString>

class QApplication;
class QWidget;

namespace quillane::ui::theme {

QPalette Palette();
QString StyleSheet();
// The rules of a subject's accent, for its window.
QString SubjectSheet(const char* subject);
// Gives the application the palette and the style sheet.
void Apply(QApplication& app);
// Marks a window body as a subject's, for its accent.
void SetSubject(QWidget* body, const char* subject);

} // namespace quillane::ui::theme
