#include "desktop/form_mirror.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QIcon>
#include <QStringList>
#include <QToolTip>
#include <algorithm>
#include <optional>
#include <utility>

#include "desktop/accessible.h"
#include "desktop/look.h"
#include "desktop/shown_control.h"

namespace zandrell {
namespace {

constexpr double kPointsAtDesign = 10;  // the label size for which the layouts are made

QString Utf8(const std::string& text) { return QString::fromStdString(text); }

QStringList TextsOf(const ChoiceList& list) {
    QStringList texts;
    for (const std::string& item : list.items) texts << Utf8(item);
    return texts;
}

QStringList ItemsOf(const QComboBox& box) {
    QStringList items;
    for (int i = 0; i < box.count(); ++i) items << box.itemText(i);
    return items;
}

// A hand on the keys does not hover: it sees below the field why the text is not used.
void ShowRefusal(const QLineEdit& field, const Control& control) {
    const bool refused = !control.hint.empty() && !control.pending && !control.stale;
    if (!refused) return;
    constexpr int kBelowPointer = 16;  // by which the toolkit moves a tip down
    const QPoint below(0, field.height() - kBelowPointer + 3);
    QToolTip::showText(field.mapToGlobal(below), Utf8(control.hint));
}

}  // namespace

QString ShownText(const std::string& text) { return Utf8(text).trimmed(); }

void FormMirror::AddColours(QWidget* widget, const Control& control) {
    writers_.push_back([widget, &control, shown = ShownColours{}]() mutable {
        const ShownColours wanted = ColoursOf(control);
        if (wanted == shown) return;
        shown = wanted;
        ApplyColours(widget, wanted);
    });
}

void FormMirror::AddCommon(QWidget* widget, const Control& control) {
    widget->setObjectName(
        QString::fromUtf8(control.name.data(), static_cast<qsizetype>(control.name.size())));
    writers_.push_back([widget, &control, hinted = false]() mutable {
        hinted = hinted || !control.hint.empty();
        if (widget->isHidden() == control.visible) widget->setVisible(control.visible);
        if (widget->isEnabledTo(widget->parentWidget()) != control.enabled) {
            widget->setEnabled(control.enabled);
        }
        const QString tip = TipOf(widget, control);
        // A tip that the window gave a widget stays as long as the control has none.
        const bool own = qobject_cast<const QAbstractItemView*>(widget) != nullptr || hinted;
        if ((own || !tip.isEmpty()) && widget->toolTip() != tip) widget->setToolTip(tip);
        const QString hint = Utf8(control.hint);
        if (hinted && widget->accessibleDescription() != hint) {
            widget->setAccessibleDescription(hint);
        }
    });
}

void FormMirror::Follow(QWidget* widget, const Control& caption) {
    AddColours(widget, caption);
    MirrorFont(widget);
}

// Skins write the captions bold; one language has its own size.
void FormMirror::MirrorFont(QWidget* widget) {
    writers_.push_back([this, widget, bold = false, points = 10]() mutable {
        if (window_.bold_labels == bold && window_.label_font_size == points) return;
        QFont font = widget->font();
        font.setPointSizeF(font.pointSizeF() * window_.label_font_size /
                           (points > 0 ? points : kPointsAtDesign));
        bold = window_.bold_labels;
        points = window_.label_font_size;
        const bool never = widget->objectName() == QStringLiteral("Label19");
        font.setBold(widget->property("always_bold").toBool() || (bold && !never));
        widget->setFont(font);
    });
}

void FormMirror::Bind(QLabel* label, const Control& control) {
    AddCommon(label, control);
    AddColours(label, control);
    if (dynamic_cast<FigureLabel*>(label) == nullptr) MirrorFont(label);
    writers_.push_back([label, &control] {
        const QString text = ShownText(control.text);
        if (label->text() != text) label->setText(text);
    });
}

void FormMirror::Bind(QLineEdit* field, const TextField& control) {
    AddCommon(field, control);
    AddColours(field, control);
    const std::string_view name = control.name;
    QObject::connect(field, &QLineEdit::textEdited, field, [this, name](const QString& text) {
        QToolTip::hideText();
        Perform([&] { window_.UserSetText(name, text.toStdString()); });
    });
    QObject::connect(field, &QLineEdit::returnPressed, field, [this, name, field, &control] {
        Perform([&] { window_.UserReturn(name); });
        ShowRefusal(*field, control);
    });
    // Writing an equal text would move the cursor.
    writers_.push_back([field, &control] {
        const QString text = Utf8(control.text);
        if (field->text() == text) return;
        const int cursor = field->cursorPosition();
        field->setText(text);
        field->setCursorPosition(std::min<int>(cursor, static_cast<int>(text.size())));
    });
}

void FormMirror::Bind(QPlainTextEdit* text, const TextField& control) {
    AddCommon(text, control);
    const std::string_view name = control.name;
    const auto wanted = [&control] {
        return Utf8(control.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    };
    // The widget tells of every change; one that the form has made leaves both equal and is no act.
    QObject::connect(text, &QPlainTextEdit::textChanged, text, [this, text, name, wanted] {
        const QString typed = text->toPlainText();
        if (typed != wanted()) Perform([&] { window_.UserSetText(name, typed.toStdString()); });
    });
    writers_.push_back([text, wanted] {
        if (text->toPlainText() != wanted()) text->setPlainText(wanted());
    });
}

void FormMirror::Bind(QSlider* bar, const ScrollBar& control) {
    AddCommon(bar, control);
    bar->setOrientation(Qt::Horizontal);
    bar->setPageStep(10);
    const std::string_view name = control.name;
    QObject::connect(bar, &QSlider::sliderPressed, bar, [this] { window_.BeginDrag(); });
    QObject::connect(bar, &QSlider::sliderReleased, bar, [this] { window_.EndDrag(); });
    QObject::connect(bar, &QSlider::actionTriggered, bar, [this, bar, name] {
        const int position = bar->sliderPosition();
        Perform([&] { window_.UserScroll(name, position); });
    });
    writers_.push_back([bar, &control] {
        const auto [least, most] = std::minmax({control.LowEnd(), control.HighEnd()});
        if (bar->minimum() != least || bar->maximum() != most) bar->setRange(least, most);
        if (bar->value() != control.Position() || bar->sliderPosition() != control.Position()) {
            bar->setValue(control.Position());
        }
    });
}

void FormMirror::Bind(QRadioButton* option, const OptionButton& control) {
    AddCommon(option, control);
    Follow(option, control);
    const std::string_view name = control.name;
    QObject::connect(option, &QRadioButton::clicked, option,
                     [this, name] { Perform([&] { window_.UserChoose(name); }); });
    writers_.push_back([option, &control] {
        const QString text = ShownText(control.text);
        if (option->text() != text) option->setText(text);
        // Of a pair only the one that is on can be written: it puts the other out.
        if (control.on && !option->isChecked()) option->setChecked(true);
    });
}

void FormMirror::Bind(QCheckBox* box, const CheckBox& control) {
    AddCommon(box, control);
    Follow(box, control);
    const std::string_view name = control.name;
    QObject::connect(box, &QCheckBox::clicked, box,
                     [this, name](bool on) { Perform([&] { window_.UserCheck(name, on); }); });
    writers_.push_back([box, &control] {
        const QString text = ShownText(control.text);
        if (box->text() != text) box->setText(text);
        if (box->isChecked() != control.on) box->setChecked(control.on);
    });
}

void FormMirror::Bind(QComboBox* box, const ComboBox& control) {
    AddCommon(box, control);
    const std::string_view name = control.name;
    box->setEditable(control.takes_any_text);
    QObject::connect(box, &QComboBox::activated, box, [this, name](int index) {
        Perform([&] { window_.UserSelect(name, index); });
    });
    if (QLineEdit* edit = box->lineEdit()) {
        QObject::connect(edit, &QLineEdit::textEdited, edit, [this, name](const QString& text) {
            Perform([&] { window_.UserSetText(name, text.toStdString()); });
        });
        QObject::connect(edit, &QLineEdit::returnPressed, edit,
                         [this, name] { Perform([&] { window_.UserReturn(name); }); });
    }
    writers_.push_back([box, &control] {
        const QStringList items = TextsOf(control);
        if (ItemsOf(*box) != items) {
            box->clear();
            box->addItems(items);
        }
        if (box->currentIndex() != control.index) box->setCurrentIndex(control.index);
        const QString text = Utf8(control.text);
        if (box->isEditable() && box->currentText() != text) box->setEditText(text);
    });
}

void FormMirror::Bind(QListWidget* list, const ListBox& control, ListChoice choice) {
    AddCommon(list, control);
    AddColours(list, control);
    const std::string_view name = control.name;
    const auto select = [this, list, name] {
        const int row = list->currentRow();
        if (row >= 0) Perform([&] { window_.UserSelect(name, row); });
    };
    if (choice == ListChoice::Activation) {
        QObject::connect(list, &QListWidget::itemActivated, list, select);
    } else {
        BindRows(list, control, select);
    }
    writers_.push_back([list, &control, shown = QStringList()]() mutable {
        const QStringList items = TextsOf(control);
        if (shown != items) {
            shown = items;
            list->clear();
            list->addItems(items);
        }
        if (list->currentRow() != control.index) list->setCurrentRow(control.index);
    });
}

void FormMirror::BindRows(QListWidget* list, const ListBox& control,
                          const std::function<void()>& select) {
    const std::string_view name = control.name;
    // A click on the item that is chosen already is a choice too; the arrow keys only move the row.
    // Rows that the form itself has set are no acts.
    QObject::connect(list, &QListWidget::itemClicked, list, select);
    QObject::connect(list, &QListWidget::currentRowChanged, list,
                     [list, &control, select](int row) {
                         const bool by_key = QApplication::mouseButtons() == Qt::NoButton;
                         // The focus that comes to a list makes its first row the current one and
                         // selects nothing.
                         const bool by_focus = row >= 0 && !list->item(row)->isSelected();
                         if (by_focus && list->property("entered_quietly").toBool()) return;
                         if (by_key && row != control.index) select();
                     });
    QObject::connect(list, &QListWidget::itemDoubleClicked, list,
                     [this, name] { Perform([&] { window_.UserDoubleClick(name); }); });
    QObject::connect(list, &QListWidget::itemActivated, list, [this, list, name, select] {
        if (!list->hasFocus() || QApplication::mouseButtons() != Qt::NoButton) return;
        select();
        Perform([&] { window_.UserReturn(name); });
    });
}

void FormMirror::Bind(QAction* action, const MenuEntry& control) {
    const std::string_view name = control.name;
    QObject::connect(action, &QAction::triggered, action, [this, name] { Click(name); });
    writers_.push_back([action, &control] {
        if (action->isEnabled() != control.enabled) action->setEnabled(control.enabled);
        if (action->isVisible() != control.visible) action->setVisible(control.visible);
        // Only what runs has a tick, so that no entry shows an empty box.
        if (action->isCheckable() != control.checked) action->setCheckable(control.checked);
        if (action->isChecked() != control.checked) action->setChecked(control.checked);
        const QString tip = Utf8(control.hint);
        if (action->toolTip() != tip) action->setToolTip(tip);
    });
}

void FormMirror::Bind(QMenu* menu, const MenuEntry& control) {
    writers_.push_back([menu, &control] {
        if (menu->isEnabled() != control.enabled) menu->setEnabled(control.enabled);
    });
}

void FormMirror::Bind(QPushButton* button, const Button& picture, const Control* caption) {
    AddCommon(button, picture);
    const bool on_skin =
        skinned && (button->property("tool").toBool() || button->property("quiet").toBool());
    // On a white face the texts stay dark, whatever the skin's captions are.
    if (caption && on_skin) AddColours(button, *caption);
    MirrorFont(button);
    QObject::connect(button, &QPushButton::clicked, button,
                     [this, name = picture.name] { Click(name); });
    const QPixmap icon =
        on_skin ? pictures_.Opaque(picture.picture) : pictures_.OnButton(picture.picture);
    if (!icon.isNull()) button->setIcon(QIcon(icon));
    const Control& text_control = caption ? *caption : picture;
    const bool shows_text = !button->property("picture_only").toBool();
    // A click alone checks nothing: the form tells what runs.
    button->setCheckable(button->property("tool").toBool());
    writers_.push_back([button, shows_text, &text_control] {
        const QString text = ShownText(text_control.text);
        if (shows_text && button->text() != text) button->setText(text);
        const QString name = QString(text).remove(QLatin1Char('&'));
        if (!name.isEmpty() && button->accessibleName() != name) button->setAccessibleName(name);
        if (button->isChecked() != text_control.checked) button->setChecked(text_control.checked);
        if (!shows_text && button->toolTip().isEmpty()) button->setToolTip(text);
    });
}

void FormMirror::BindPanel(QWidget* panel, const Control& control) { AddCommon(panel, control); }

void FormMirror::Describe(QWidget* widget, const Control& caption, const QString& addition) {
    // A label with a symbol has the word for it in its tool tip.
    const bool symbol = caption.kind == ControlKind::Label;
    // Taken apart only when they changed: that takes long, and all captions are asked at each act.
    using Words = std::pair<std::string, std::string>;
    writers_.push_back(
        [widget, &caption, addition, symbol, before = std::optional<Words>()]() mutable {
            Words words(caption.text, caption.tool_tip);
            if (before == words) return;
            before = std::move(words);
            CaptionParts parts = PartsOf(ShownText(caption.text) + QLatin1Char(' ') + addition);
            if (symbol && !caption.tool_tip.empty()) parts.quantity = ShownText(caption.tool_tip);
            // What is typed has no value of its own that the unit could stand behind.
            const bool typed = qobject_cast<QLineEdit*>(widget) != nullptr;
            const QString name =
                (typed ? parts.quantity + QLatin1Char(' ') + parts.unit : parts.quantity).trimmed();
            if (widget->accessibleName() != name) widget->setAccessibleName(name);
            if (widget->property("unit") != parts.unit) widget->setProperty("unit", parts.unit);
        });
}

void FormMirror::Perform(const std::function<void()>& act) {
    act();
    Mirror();
    if (after_act) after_act();
}

void FormMirror::Click(std::string_view control) {
    Perform([&] { window_.UserClick(control); });
}

QString FormMirror::SkinTexts() const {
    if (!skinned) return {};
    return window_.bold_labels ? QStringLiteral("dark texts") : QStringLiteral("light texts");
}

void FormMirror::AddWriter(std::function<void()> writer) { writers_.push_back(std::move(writer)); }

void FormMirror::Mirror() {
    for (Writer& write : writers_) write();
}

}  // namespace zandrell
