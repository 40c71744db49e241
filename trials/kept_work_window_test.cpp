// What keeping unsaved work on disk does to the real window: nothing, before a key is painted.

#include "core/editing.h"
#include "core/text_changes.h"
#include "files/recovery.h"
#include "trials/window_fixture_test.h"

#include <QFile>
#include <QLineEdit>
#include <QStatusBar>

namespace {

/// Looks at the moment when a widget is painted.
class PaintWatch : public QObject {
public:
    PaintWatch(QWidget* widget, std::function<void()> painted) : painted_(std::move(painted))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted_();
        return false;
    }

private:
    std::function<void()> painted_;
};

} // namespace

class KeptWork : public WindowTest {};

TEST_F(KeptWork, aCountIsPaintedBeforeItGoesIntoTheJournalAndIsThereSoonAfter)
{
    settle();
    const QString journal = QString::fromStdString(recoveryJournalPath(recoveryCopy.place));
    for (int count = 1; count <= 20; ++count) {
        const qint64 before = QFile(journal).size();
        int paints = 0;
        bool tooEarly = false;
        const PaintWatch watch(named<QLineEdit>("Text2(1)"), [&] {
            ++paints;
            tooEarly = tooEarly || (paints == 1 && QFile(journal).size() != before);
        });
        window->onEvent([count] {
            setText2(1, std::to_string(count));
            markUnsavedWork();
        });
        ASSERT_TRUE(waitFor([&] { return paints > 0 && QFile(journal).size() > before; })) << count;
        EXPECT_FALSE(tooEarly) << count;
    }
    EXPECT_TRUE(waitFor([] { return !recoveryCopy.settling; }));
}

TEST_F(KeptWork, theFootSaysSoAsLongAsNothingCanBeKept)
{
    const auto foot = [this] { return named<QStatusBar>("StatusBar1")->currentMessage(); };
    recoveryCopy.place = 0; // the folder can tell nothing else
    frmMain.diskNotice = "The disk is full.";
    window->onEvent([] { frmMain.notice = "about a key"; });
    EXPECT_EQ(foot(), "about a key");
    window->onEvent([] {});
    EXPECT_EQ(foot(), "The disk is full.");
}
