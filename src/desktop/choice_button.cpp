#include "desktop/choice_button.h"

#include <QActionGroup>
#include <QMenu>

namespace zandrell {
namespace {

// An access key is marked by "&", so that one in a word stands twice.
QString ItemText(const std::string& item) {
    return QString::fromStdString(item).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

void FillMenu(QMenu& menu, const ComboBox& choice, FormMirror& mirror) {
    menu.clear();
    delete menu.findChild<QActionGroup*>();
    auto* group = new QActionGroup(&menu);
    for (std::size_t i = 0; i < choice.items.size(); ++i) {
        QAction* action = menu.addAction(ItemText(choice.items[i]));
        action->setCheckable(true);
        group->addAction(action);
        const int index = static_cast<int>(i);
        QObject::connect(action, &QAction::triggered, &menu, [&mirror, &choice, index] {
            mirror.Perform([&] { mirror.Window().UserSelect(choice.name, index); });
        });
    }
}

}  // namespace

QPushButton* MakeChoiceButton(const ComboBox& choice, const QString& addition, FormMirror& mirror,
                              QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setProperty("quiet", true);
    button->setAutoDefault(false);
    auto* menu = new QMenu(button);
    button->setMenu(menu);
    mirror.BindPanel(button, choice);
    mirror.AddWriter(
        [button, menu, &choice, &mirror, addition, shown = std::vector<std::string>()]() mutable {
            if (shown != choice.items) {
                shown = choice.items;
                FillMenu(*menu, choice, mirror);
            }
            const QString words = ShownText(choice.tool_tip);
            // A sign of the font grows with it, which the indicator of the style does not.
            const QString text = words + QStringLiteral(" ▾");
            if (button->text() != text) button->setText(text);
            const QString name = words + QLatin1Char(' ') + addition;
            if (button->accessibleName() != name) button->setAccessibleName(name);
            const auto actions = menu->actions();
            if (choice.index >= 0 && choice.index < actions.size()) {
                actions[choice.index]->setChecked(true);
            }
        });
    return button;
}

}  // namespace zandrell
