#include "window/manual_window.h"

#include "extras/manual.h"
#include "platform/ports.h"
#include "window/bring_forward.h"
#include "window/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolBar>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

/// `name`: within the folder docs. Without such a page an empty address.
static QUrl pageNamed(const QString& name)
{
    const QString executable = QCoreApplication::applicationDirPath();
    for (const QString& folder : {QString::fromStdString(ports.programFolder), executable,
                                  executable + "/../share/doc/tallystrata"}) // of an installed package
        if (const QFileInfo page(folder + "/docs/" + name); page.isFile())
            return QUrl::fromLocalFile(page.canonicalFilePath());
    return {};
}

/// The page with the list of all others.
static QUrl contentsPage()
{
    return pageNamed("manual/index.md");
}

static QStringList allPages()
{
    const QFileInfo contents(contentsPage().toLocalFile());
    QStringList files;
    for (const QString& folder : {contents.path(), contents.path() + "/windows", contents.path() + "/.."})
        for (const QFileInfo& file : QDir(folder).entryInfoList({"*.md"}, QDir::Files, QDir::Name))
            files += file.canonicalFilePath();
    return files;
}

static QString markdownOf(const QString& page)
{
    QFile file(page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Without what Markdown puts between the words of a text.
static QString wordsOf(QString markdown)
{
    static const QRegularExpression signs("\\]\\([^)]*\\)|[*_`\\[\\]|#]");
    return markdown.remove(signs).simplified();
}

/// The page whose title has the text; an empty address if there is none.
static QUrl pageAbout(const QString& text)
{
    for (const QString& page : allPages())
        if (markdownOf(page).section('\n', 0, 0).contains(text, Qt::CaseInsensitive))
            return QUrl::fromLocalFile(page);
    return {};
}

/// The next page that holds the text, behind the page on show, which itself comes last; an empty address if
/// there is none.
static QUrl nextPageWith(const QString& text, const QUrl& shown)
{
    QStringList files = allPages();
    const auto at = files.indexOf(shown.toLocalFile());
    std::rotate(files.begin(), files.begin() + at + 1, files.end());
    const QString wanted = wordsOf(text);
    for (const QString& name : files) {
        const QString markdown = markdownOf(name);
        if (!wordsOf(markdown).contains(wanted, Qt::CaseInsensitive))
            continue; // laying out a page takes a hundred times as long
        QTextDocument page;
        page.setMarkdown(markdown);
        if (!page.find(text).isNull())
            return QUrl::fromLocalFile(name);
    }
    return {};
}

/// Shows Markdown with what the toolkit leaves out: places to jump to, lines in tables, pictures that fit.
class ManualPages : public QTextBrowser {
public:
    ManualPages()
    {
        setObjectName("pages");
        setAccessibleName("Manual");
        setFrameShape(QFrame::NoFrame);
        setOpenLinks(true);
        document()->setDocumentMargin(24);
        // Told of each page, also of those that Back and Forward bring.
        connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
            layOutHeadings();
            layOutTables();
            underlineLinks();
            scrollToAnchor(page.fragment());
        });
    }

protected:
    QVariant loadResource(int type, const QUrl& name) override
    {
        QVariant found = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource || found.typeId() != QMetaType::QByteArray)
            return found;
        constexpr double widest = 780;
        constexpr double dotsPerMetre = 96 / 0.0254;
        const QImage picture =
            QImage::fromData(found.toByteArray()).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (picture.isNull())
            return picture;
        // Pictures may have more pixels than they are to be wide; their density tells. Each gets as many as
        // the screen has for it, so that the screen need not stretch it.
        const double width = std::min(widest, picture.width() * dotsPerMetre / picture.dotsPerMeterX());
        QImage shown = picture.scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
        shown.setDevicePixelRatio(devicePixelRatioF());
        return shown;
    }

private:
    /// Room above each; and a name as links name it: "Number pads, keypads" is "number-pads-keypads".
    void layOutHeadings()
    {
        constexpr int room[] = {0, 0, 22, 14}; // by level; the first one stands at the top
        static const QRegularExpression signs("[^\\w -]", QRegularExpression::UseUnicodePropertiesOption);
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            const int level = block.blockFormat().headingLevel();
            if (level == 0)
                continue;
            QTextCharFormat named;
            named.setAnchor(true);
            named.setAnchorNames({block.text().toLower().remove(signs).replace(' ', '-')});
            QTextCursor whole(block);
            whole.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            whole.mergeCharFormat(named);
            QTextBlockFormat apart;
            apart.setTopMargin(room[std::min(level, 3)]);
            apart.setBottomMargin(6);
            whole.mergeBlockFormat(apart);
        }
    }

    /// A colour alone is not enough for every eye.
    void underlineLinks()
    {
        QTextCharFormat underlined;
        underlined.setFontUnderline(true);
        std::vector<std::pair<int, int>> links; // found first: a change may join one to what stands beside it
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (const QTextFragment text = part.fragment(); !text.charFormat().anchorHref().isEmpty())
                    links.emplace_back(text.position(), text.position() + text.length());
        for (const auto& [begin, end] : links) {
            QTextCursor link(document());
            link.setPosition(begin);
            link.setPosition(end, QTextCursor::KeepAnchor);
            link.mergeCharFormat(underlined);
        }
    }

    void layOutTables()
    {
        for (QTextFrame* const frame : document()->rootFrame()->childFrames()) {
            auto* const table = qobject_cast<QTextTable*>(frame);
            if (table == nullptr)
                continue;
            QTextTableFormat format = table->format();
            format.setBorder(1);
            format.setBorderCollapse(true);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(palette().mid());
            format.setCellSpacing(0);
            format.setCellPadding(4);
            format.setTopMargin(6);
            format.setBottomMargin(10);
            table->setFormat(format);
        }
    }
};

ManualWindow::ManualWindow(MainWindow& main) : main_(main), pages_(new ManualPages)
{
    setObjectName("frmManual");
    setWindowTitle("TallyStrata manual");
    setCentralWidget(pages_);
    QToolBar* const bar = addToolBar("Pages");
    bar->setMovable(false);
    bar->toggleViewAction()->setEnabled(false); // a hidden bar would leave no way back
    QAction* const contents = bar->addAction("Contents", this, [this] { pages_->setSource(contentsPage()); });
    contents->setShortcut(Qt::ALT | Qt::Key_Home);
    QAction* const back = bar->addAction("Back", pages_, &QTextBrowser::backward);
    back->setShortcut(QKeySequence::Back);
    back->setEnabled(false);
    connect(pages_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    QAction* const forward = bar->addAction("Forward", pages_, &QTextBrowser::forward);
    forward->setShortcut(QKeySequence::Forward);
    forward->setEnabled(false);
    connect(pages_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    addSearch(*bar);
    auto* const help = new QShortcut(Qt::Key_F1, this);
    connect(help, &QShortcut::activated, this, [this] { main_.onEvent([] { openPageOf("frmManual"); }); });
    const QRect free = screen()->availableGeometry();
    resize(QSize(860, 680).boundedTo(free.size() - QSize(8, 40)));
    move(free.right() - width() - 8, free.top() + (free.height() - height() - 40) / 2); // beside the sheet
}

void ManualWindow::addSearch(QToolBar& bar)
{
    auto* const room = new QWidget;
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(room);
    searched_ = new QLineEdit;
    searched_->setObjectName("searched");
    searched_->setAccessibleName("Search in the manual");
    searched_->setPlaceholderText("Search in all pages");
    searched_->setMaximumWidth(220);
    bar.addWidget(searched_);
    bar.addAction("Find next", this, &ManualWindow::findNext)->setShortcut(QKeySequence::FindNext);
    connect(searched_, &QLineEdit::returnPressed, this, &ManualWindow::findNext);
    auto* const begin = new QShortcut(QKeySequence::Find, this);
    connect(begin, &QShortcut::activated, searched_, [this] {
        searched_->setFocus(Qt::ShortcutFocusReason);
        searched_->selectAll();
    });
}

/// Of a new text first the page that has it in its title. Then behind the place found last, on the pages that
/// follow, and from the first one again.
void ManualWindow::findNext()
{
    const QString text = searched_->text().simplified();
    statusBar()->clearMessage();
    if (text.isEmpty())
        return;
    const QUrl shown = pages_->source().adjusted(QUrl::RemoveFragment);
    if (text != sought_) {
        sought_ = text;
        if (const QUrl about = pageAbout(text); about.isValid() && about != shown)
            pages_->setSource(about);
        pages_->moveCursor(QTextCursor::Start);
    }
    if (pages_->find(text))
        return;
    const QUrl page = nextPageWith(text, pages_->source().adjusted(QUrl::RemoveFragment));
    if (!page.isValid()) {
        statusBar()->showMessage("\"" + text + "\" is on no page.", 4000);
        return;
    }
    pages_->setSource(page);
    pages_->moveCursor(QTextCursor::Start);
    pages_->find(text);
}

void ManualWindow::showWantedPage()
{
    if (frmManual.page.empty() && !pages_->source().isEmpty())
        return;
    const QUrl wanted = pageNamed(QString::fromStdString(frmManual.page));
    frmManual.page.clear();
    if (wanted.isValid())
        pages_->setSource(wanted);
    else if (const QUrl contents = contentsPage(); contents.isValid())
        pages_->setSource(contents);
    else
        pages_->setPlainText("The manual (the folder docs) is not beside the program.");
}

void ManualWindow::standBy(QWidget& modal)
{
    for (QWidget* const one : {static_cast<QWidget*>(this), &modal})
        one->winId(); // only windows of the system know one another
    windowHandle()->setTransientParent(modal.windowHandle());
}

void ManualWindow::present()
{
    if (frmManual.visible)
        showWantedPage();
    if (isVisible() != frmManual.visible) {
        if (QWidget* const modal = QApplication::activeModalWidget())
            standBy(*modal);
        setVisible(frmManual.visible);
    }
    if (frmManual.forwardRevision != forwardShown_) {
        forwardShown_ = frmManual.forwardRevision;
        bringForward(*this);
    }
}

void ManualWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the record says whether it is open
    main_.onEvent(closeManual);
}

void ManualWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}
