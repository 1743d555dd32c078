#include "desktop/help_window.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace corvanda {

namespace {

constexpr QSize usual_size(960, 700);
constexpr int usual_line = 20;  // the largest height of a line at which that is enough
constexpr int side_width = 260;
constexpr int address_role = Qt::UserRole;
constexpr int contents_tab = 0;
constexpr int index_tab = 1;

}  // namespace

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file, const QString& title)
    : QDialog(nullptr, Qt::Window), help(std::move(file)) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(title);
    page = new HelpBrowser(*help, this);
    auto* split = new QSplitter(this);
    split->addWidget(MakeSide());
    split->addWidget(page);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 4);
    layout->setSpacing(2);
    layout->addWidget(MakeBar());
    layout->addWidget(split, 1);
    connect(page, &QTextBrowser::sourceChanged, this, &HelpWindow::MarkInTree);
    const QRect usable = screen()->availableGeometry();
    const double larger = std::max(1.0, static_cast<double>(fontMetrics().height()) / usual_line);
    resize((usual_size * larger).boundedTo(usable.size() * 0.9));
    const int side = std::clamp(SideWidth(), side_width, std::max(side_width, width() * 2 / 5));
    split->setSizes({side, width() - side});
    // By its frame, so that the title does not end above the screen.
    move(usable.center().x() - width() / 2, usable.top() + (usable.height() - height()) / 3);
}

QToolBar* HelpWindow::MakeBar() {
    auto* bar = new QToolBar(this);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](QStyle::StandardPixmap icon, const char* text, const char* name,
                         QKeyCombination key) {
        QAction* action = bar->addAction(style()->standardIcon(icon), QLatin1String(text));
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        return action;
    };
    QAction* back = add(QStyle::SP_ArrowBack, "Back", "HelpBack", Qt::ALT | Qt::Key_Left);
    QAction* on = add(QStyle::SP_ArrowForward, "Forward", "HelpForward", Qt::ALT | Qt::Key_Right);
    QAction* home = add(QStyle::SP_DirHomeIcon, "Contents", "HelpHome", Qt::ALT | Qt::Key_Home);
    back->setEnabled(false);
    on->setEnabled(false);
    connect(back, &QAction::triggered, page, &QTextBrowser::backward);
    connect(on, &QAction::triggered, page, &QTextBrowser::forward);
    connect(home, &QAction::triggered, this, &HelpWindow::OpenContents);
    connect(page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, on, &QAction::setEnabled);
    return bar;
}

QWidget* HelpWindow::MakeSide() {
    tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("HelpTabs"));
    tabs->setAccessibleName(QStringLiteral("Ways to a page"));
    tabs->addTab(MakeTree(), QStringLiteral("Contents"));
    tabs->addTab(MakeIndex(), QStringLiteral("Index"));
    connect(new QShortcut(Qt::CTRL | Qt::Key_1, this), &QShortcut::activated, this, [this] {
        tabs->setCurrentIndex(contents_tab);
        tree->setFocus();
    });
    connect(new QShortcut(Qt::CTRL | Qt::Key_2, this), &QShortcut::activated, this, [this] {
        tabs->setCurrentIndex(index_tab);
        filter->setFocus();
    });
    return tabs;
}

QTreeWidget* HelpWindow::MakeTree() {
    tree = new QTreeWidget(this);
    tree->setObjectName(QStringLiteral("HelpContents"));
    tree->setAccessibleName(QStringLiteral("Contents"));
    tree->setHeaderHidden(true);
    std::vector<QTreeWidgetItem*> above;  // the last item of each depth
    for (const HelpTopic& topic : help->Contents()) {
        const auto depth = std::min(static_cast<std::size_t>(topic.depth), above.size());
        above.resize(depth);
        auto* item = depth == 0 ? new QTreeWidgetItem(tree) : new QTreeWidgetItem(above.back());
        item->setText(0, topic.title);
        item->setData(0, address_role, topic.name);
        above.push_back(item);
    }
    tree->expandAll();
    // Where a title is wider than the list, the list can be scrolled.
    tree->resizeColumnToContents(0);
    tree->header()->setMinimumSectionSize(tree->columnWidth(0));
    const auto open = [this](QTreeWidgetItem* item) {
        if (item != nullptr) page->Show(item->data(0, address_role).toString());
    };
    connect(tree, &QTreeWidget::currentItemChanged, this, open);
    connect(tree, &QTreeWidget::itemClicked, this, open);
    connect(tree, &QTreeWidget::itemActivated, this, open);
    return tree;
}

// What the contents need to be seen in full.
int HelpWindow::SideWidth() const {
    const int frames = 4 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    return tree->header()->minimumSectionSize() + style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
           frames;
}

QWidget* HelpWindow::MakeIndex() {
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(4, 4, 4, 4);
    filter = new QLineEdit(side);
    filter->setObjectName(QStringLiteral("HelpFilter"));
    filter->setAccessibleName(QStringLiteral("Find a keyword"));
    filter->setPlaceholderText(QStringLiteral("Find a keyword"));
    filter->setClearButtonEnabled(true);
    filter->installEventFilter(this);
    nothing = new QLabel(QStringLiteral("No keyword contains this."), side);
    nothing->hide();
    keywords = new QListWidget(side);
    keywords->setObjectName(QStringLiteral("HelpKeywords"));
    keywords->setAccessibleName(QStringLiteral("Keywords"));
    for (const HelpKeyword& keyword : help->Keywords()) {
        auto* item = new QListWidgetItem(keyword.word, keywords);
        item->setData(address_role, keyword.address);
    }
    const auto open = [this](const QListWidgetItem* item) {
        page->Show(item->data(address_role).toString());
    };
    connect(keywords, &QListWidget::itemClicked, this, open);
    connect(keywords, &QListWidget::itemActivated, this, open);
    connect(filter, &QLineEdit::textChanged, this, &HelpWindow::Narrow);
    connect(filter, &QLineEdit::returnPressed, this, &HelpWindow::OpenFirstKeyword);
    layout->addWidget(filter);
    layout->addWidget(nothing);
    layout->addWidget(keywords, 1);
    return side;
}

// Every word that was typed must be in the keyword, in any order.
void HelpWindow::Narrow(const QString& typed) {
    const QStringList words = typed.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int row = 0; row < keywords->count(); ++row) {
        QListWidgetItem* item = keywords->item(row);
        const bool wanted = std::all_of(words.begin(), words.end(), [item](const QString& word) {
            return item->text().contains(word, Qt::CaseInsensitive);
        });
        item->setHidden(!wanted);
    }
    nothing->setVisible(FirstKeyword() == nullptr);
}

QListWidgetItem* HelpWindow::FirstKeyword() const {
    for (int row = 0; row < keywords->count(); ++row) {
        if (!keywords->item(row)->isHidden()) return keywords->item(row);
    }
    return nullptr;
}

void HelpWindow::OpenFirstKeyword() {
    const QListWidgetItem* first = FirstKeyword();
    if (first != nullptr) page->Show(first->data(address_role).toString());
}

// The down arrow leads from the field into the list below it.
bool HelpWindow::eventFilter(QObject* object, QEvent* event) {
    const bool down = object == filter && event->type() == QEvent::KeyPress &&
                      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down;
    if (!down) return QDialog::eventFilter(object, event);
    keywords->setCurrentItem(FirstKeyword());
    keywords->setFocus();
    return true;
}

// The page may change by a link, by the index or by going back; the contents follow it quietly.
void HelpWindow::MarkInTree(const QUrl& shown) {
    const QSignalBlocker quiet(tree);
    for (QTreeWidgetItemIterator each(tree); *each != nullptr; ++each) {
        if ((*each)->data(0, address_role).toString() != shown.fileName()) continue;
        tree->setCurrentItem(*each);
        tree->scrollToItem(*each);
        return;
    }
}

void HelpWindow::OpenTopic(Integer context) {
    page->Show(help->TopicOf(context));
    page->setFocus();
}

void HelpWindow::OpenContents() {
    page->Show(help->Contents().front().name);
    tabs->setCurrentIndex(contents_tab);
    tree->setFocus();
}

void HelpWindow::OpenIndex() {
    if (page->source().isEmpty()) page->Show(help->Contents().front().name);
    tabs->setCurrentIndex(index_tab);
    filter->clear();
    filter->setFocus();
}

void HelpWindow::Present() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

}  // namespace corvanda
