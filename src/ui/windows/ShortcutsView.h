#pragma once

#include "ui/background/BackgroundPage.h"

#include <vector>

namespace ardeo
{

struct Shortcut {
    QString key;
    QString label;
};

struct ShortcutSection {
    QString title;
    /// A symbol's name.
    QString icon;
    std::vector<Shortcut> shortcuts;
};

/// The program's keyboard shortcuts and ways through its menus.
std::vector<ShortcutSection> shortcutSections();

/// A list of keyboard shortcuts in sections.
class ShortcutsView final : public BackgroundPage
{
    Q_OBJECT

public:
    ShortcutsView(const std::vector<ShortcutSection>& sections, Clock& clock, QWidget* parent = nullptr);
};

} // namespace ardeo
