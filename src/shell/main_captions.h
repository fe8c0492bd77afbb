#pragma once

namespace zandrell {

class MainForm;
class ModalForm;
struct SharedValues;

// Writes every caption, menu text and tool tip of the main window from the loaded lists.
void SetCaptions(MainForm& main);
// Dresses the window as the skin of the settings says; other numbers than 1 to 5 leave it as
// designed.
void ApplySkin(MainForm& main);
void ApplySkin(const SharedValues& shared, ModalForm& window);

}  // namespace zandrell
