// The real file dialogs: what they are called, where they start, what they propose and what they make of a
// name without an ending.

#include "trials/window_fixture_test.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

namespace {

class FileDialogs : public WindowTest {
protected:
    QTemporaryDir cores;
    QString title, folder, proposed;

    /// Looks at the dialog that the entry opens, types a name (none: cancels) and accepts.
    void use(const char* entry, const QString& typed)
    {
        bool seen = false;
        QTimer looks;
        QObject::connect(&looks, &QTimer::timeout, window, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || seen) { // a message that nobody expects must not keep the test waiting
                if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    ADD_FAILURE() << box->text().toStdString();
                    box->reject();
                } else if (dialog != nullptr) {
                    dialog->reject();
                }
                return;
            }
            seen = true;
            title = dialog->windowTitle();
            folder = dialog->directory().path();
            auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
            proposed = name->text();
            name->setFocus(); // as when a user types: else the list's selection writes into it
            QTimer::singleShot(0, dialog, [dialog, name, typed] {
                name->setText(typed);
                typed.isEmpty() ? dialog->reject() : static_cast<QDialog*>(dialog)->accept();
            });
        });
        looks.start(50);
        named<QAction>(entry)->setEnabled(true);
        named<QAction>(entry)->trigger();
        EXPECT_TRUE(seen) << entry;
    }
};

} // namespace

TEST_F(FileDialogs, sayWhatTheySaveAndStartBesideTheSheet)
{
    use("mnuSaveAs", "");
    EXPECT_EQ(title, "Save data sheet");
    EXPECT_EQ(proposed, "Untitled.csv");
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    EXPECT_EQ(folder, (documents.exists() ? documents : QDir::home()).path());

    use("mnuSaveAs", cores.filePath("lake 5"));
    EXPECT_EQ(sheet.SheetPath, cores.filePath("lake 5.csv").toStdString());
    EXPECT_TRUE(QFile::exists(cores.filePath("lake 5.csv")));
    EXPECT_FALSE(QFile::exists(cores.filePath("lake 5")));
    use("mnuSaveAs", "core.2"); // a point is an ending
    EXPECT_TRUE(QFile::exists(cores.filePath("core.2")));
    use("mnuSaveAs", "lake 6");
    EXPECT_EQ(proposed, "core.2");

    const struct {
        const char *entry, *title, *proposed;
    } cases[] = {{"mnuSaveAs", "Save data sheet", "lake 6.csv"},
                 {"mnuPercentAll", "Save percentage table", "lake 6_percent.csv"},
                 {"mnuTemplate", "Save template", "Template.csv"},
                 {"mnuOpen", "Open data sheet or template", ""}};
    for (const auto& one : cases) {
        use(one.entry, "");
        EXPECT_EQ(title, one.title);
        EXPECT_EQ(proposed, one.proposed);
        EXPECT_EQ(folder, QDir(cores.path()).path()) << one.entry;
    }
    use("mnuSaveHistory", "");
    EXPECT_EQ(proposed, "History.csv");
    EXPECT_TRUE(folder.endsWith("/References")) << folder.toStdString();
}
