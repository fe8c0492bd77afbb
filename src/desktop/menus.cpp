#include "desktop/menus.h"

#include <QKeySequence>
#include <QSet>
#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "desktop/tool_keys.h"

namespace zandrell {
namespace {

struct EntryKey {
    std::string_view entry;
    QKeyCombination key;
    QKeyCombination other{};  // a second one
};
const EntryKey kEntryKeys[] = {
    {"Undo", Qt::CTRL | Qt::Key_Z},
    {"Redo", Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
    {"NeuPro", Qt::CTRL | Qt::Key_N},
    {"ProLad", Qt::CTRL | Qt::Key_O},
    {"ProSpeich", Qt::CTRL | Qt::Key_S},
    {"ProSpeichU", Qt::CTRL | Qt::SHIFT | Qt::Key_S},
    {"PrinterSetup", Qt::CTRL | Qt::SHIFT | Qt::Key_P},
    {"Ende", Qt::CTRL | Qt::Key_Q},
    {"Heiz_start", Qt::CTRL | Qt::Key_1},
    {"Kuehl_start", Qt::CTRL | Qt::Key_2},
    {"Humid_W_Start", Qt::CTRL | Qt::Key_3},
    {"Humid_D_Start", Qt::CTRL | Qt::Key_4},
    // With Shift: in a field the plain key copies what is selected there.
    {"kopieren", Qt::CTRL | Qt::SHIFT | Qt::Key_C},
    {"HelpHere", QKeyCombination(Qt::Key_F1)},
};

// The first entries of a group.
constexpr std::string_view kGroupStarts[] = {"ProSpeich", "PrinterSetup", "Ende",        "ZustAe",
                                             "Leist_Ber", "StateList",    "HelpSoftware"};

bool OpensMenu(std::string_view entry) {
    return std::any_of(kMenuTree.begin(), kMenuTree.end(),
                       [entry](const MenuBranch& branch) { return branch.parent == entry; });
}

void ShowKey(QAction& action, std::string_view entry) {
    for (const EntryKey& row : kEntryKeys) {
        if (row.entry != entry) continue;
        QList<QKeySequence> keys = {QKeySequence(row.key)};
        if (row.other != QKeyCombination()) keys << QKeySequence(row.other);
        action.setShortcuts(keys);
    }
    for (const ToolKey& row : kToolKeys) {
        if (row.entry != entry) continue;
        // The key belongs to the tool button; here it is only shown.
        action.setShortcut(QKeySequence(row.key));
        action.setShortcutContext(Qt::WidgetShortcut);
    }
}

// The entries of one menu in their order, with what shows their texts.
using Siblings = std::vector<std::pair<const MenuEntry*, QAction*>>;

void MirrorTexts(const Siblings& siblings, FormMirror& mirror) {
    mirror.AddWriter([siblings, shown = QStringList()]() mutable {
        QStringList texts;
        for (const auto& [entry, action] : siblings) texts << QString::fromStdString(entry->text);
        if (texts == shown) return;
        shown = texts;
        const QStringList own = WithOwnAccessKeys(texts);
        for (std::size_t i = 0; i < siblings.size(); ++i) {
            siblings[i].second->setText(own[static_cast<qsizetype>(i)]);
        }
    });
}

// Letters of a text in the order in which they would serve as its access key.
QString Candidates(const QString& text) {
    QString wanted, firsts, rest;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isLetterOrNumber()) continue;
        const QChar before = i > 0 ? text[i - 1] : QLatin1Char(' ');
        QString& kind = before == QLatin1Char('&') ? wanted : before.isSpace() ? firsts : rest;
        kind += text[i].toLower();
    }
    return wanted + firsts + rest;
}

QString WithKeyAt(QString text, QChar letter) {
    text.remove(QLatin1Char('&'));
    qsizetype at = -1;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        if (text[i].toLower() != letter) continue;
        const bool starts_word = i == 0 || text[i - 1].isSpace();
        if (at < 0 || starts_word || !(at == 0 || text[at - 1].isSpace())) at = i;
    }
    return at < 0 ? text : text.insert(at, QLatin1Char('&'));
}

bool HasOwnKey(const QString& text, const QSet<QChar>& taken) {
    const qsizetype mark = text.indexOf(QLatin1Char('&'));
    return mark >= 0 && mark + 1 < text.size() && !taken.contains(text[mark + 1].toLower());
}

}  // namespace

QStringList WithOwnAccessKeys(const QStringList& texts) {
    QStringList own = texts;
    QSet<QChar> taken;
    std::vector<qsizetype> without;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (HasOwnKey(texts[i], taken)) {
            taken.insert(texts[i][texts[i].indexOf(QLatin1Char('&')) + 1].toLower());
        } else {
            without.push_back(i);
        }
    }
    for (const qsizetype i : without) {
        const QString letters = Candidates(texts[i]);
        const auto free = std::find_if(letters.begin(), letters.end(),
                                       [&taken](QChar letter) { return !taken.contains(letter); });
        own[i] = WithKeyAt(texts[i], free == letters.end() ? QChar() : *free);
        if (free != letters.end()) taken.insert(*free);
    }
    return own;
}

void FillMenus(const MainForm& form, FormMirror& mirror, QMenuBar& bar) {
    std::map<std::string_view, QMenu*> menus;
    std::map<std::string_view, Siblings> siblings;
    for (const MenuBranch& branch : kMenuTree) {
        const auto* entry = static_cast<const MenuEntry*>(form.form.Find(branch.entry));
        const auto parent = menus.find(branch.parent);
        QMenu* above = parent == menus.end() ? nullptr : parent->second;
        QWidget* place = above ? static_cast<QWidget*>(above) : &bar;
        if (above && std::ranges::find(kGroupStarts, branch.entry) != std::end(kGroupStarts)) {
            above->addSeparator();
        }
        QAction* action = nullptr;
        if (OpensMenu(branch.entry)) {
            auto* menu = new QMenu(place);
            menu->setToolTipsVisible(true);
            action = menu->menuAction();
            menus[branch.entry] = menu;
            mirror.Bind(menu, *entry);
        } else {
            action = new QAction(place);
            ShowKey(*action, branch.entry);
            mirror.Bind(action, *entry);
        }
        action->setObjectName(QString::fromStdString(std::string(branch.entry)));
        place->addAction(action);
        siblings[branch.parent].emplace_back(entry, action);
    }
    for (const auto& [parent, entries] : siblings) MirrorTexts(entries, mirror);
}

}  // namespace zandrell
