// quillane-bench-windows: in the process, offscreen on a 1600 by 900 screen,
// the median time to open each subject window (its first opening shown on its
// own), to take a step of the Tarot and Runes walks, and to show the report of
// a 75-question Numerology test, each beside a reference measured in turn with
// it in the same run (docs/performance.md says which). Targets: 15 ms an
// opening, 2 ms a step, 20 ms the report.
//
//   quillane-bench-windows [REPETITIONS]
#include "DesktopSession.h"
#include "ui/binding/FormHost.h"
#include "ui/binding/Pictures.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryFile>
#include <QTextEdit>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <set>
#include <vector>

using namespace quillane;

namespace {

using Widgets = std::vector<QWidget*>;
const char* const kForms[4] = {"frmLearnAstrologyMain", "frmLearnNumerologyMain",
                               "frmLearnTarotMain", "frmLearnRunesMain"};

// Runs the event loop until each widget has had its paint event; the time
// from `start` in milliseconds, or -1 after ten seconds.
class Painted : public QObject {
public:
    explicit Painted(const Widgets& widgets) : waiting_(widgets.begin(), widgets.end()) {
        for (QWidget* w : widgets)
            w->installEventFilter(this);
    }
    double Wait(const QElapsedTimer& start) {
        while (!waiting_.empty() && start.elapsed() <= 10000)
            QCoreApplication::processEvents();
        for (QObject* o : waiting_)
            std::fprintf(stderr, "%s was not painted\n", qPrintable(o->objectName()));
        return waiting_.empty() ? double(start.nsecsElapsed()) / 1e6 : -1;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            waiting_.erase(watched);
        return false;
    }

private:
    std::set<QObject*> waiting_;
};

double Median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    const std::size_t n = v.size();
    return n == 0 ? -1 : n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

struct Bench {
    quillane::testing::DesktopSession session;
    bool failed = false;

    // A widget of the form's window, or of the launcher's when form is null.
    template <class W = QAbstractButton> W* In(const char* form, const QString& name) {
        QWidget* root = form ? session.host->WindowOf(form) : session.MainWindow();
        W* w = root ? root->findChild<W*>(name) : nullptr;
        if (!w)
            std::fprintf(stderr, "%s has no %s\n", form ? form : "frmMDI", qPrintable(name));
        failed = failed || !w;
        return w;
    }
    void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    void Close(const char* form) {
        session.app->Dispatch([&] { session.app->Unload(form); });
        Settle();
    }
    void Click(QAbstractButton* button) {
        if (button)
            button->click();
    }
    // Clicks and waits for the widgets that `shown` then gives to be painted.
    double Timed(QAbstractButton* button, const std::function<Widgets()>& shown) {
        QElapsedTimer start;
        start.start();
        Click(button);
        const Widgets widgets = shown();
        failed = failed || std::count(widgets.begin(), widgets.end(), nullptr);
        const double ms = failed ? -1 : Painted(widgets).Wait(start);
        failed = failed || ms < 0;
        return ms;
    }
    // Paints the widgets again.
    double Repainted(const Widgets& widgets) {
        return Timed(nullptr, [&] {
            for (QWidget* w : widgets)
                if (w)
                    w->update();
            return widgets;
        });
    }
    double Open(int subject) {
        return Timed(In(nullptr, QString("cmdSelectOption(%1)").arg(subject)), [&] {
            QWidget* w = session.host->WindowOf(kForms[subject]);
            return Widgets{w ? w->parentWidget() : nullptr};
        });
    }
    // Opens a subject and clicks its way in; then, step by step, the click on
    // `next` until the widgets `shown` gives are painted, and their repaint.
    // A walk meets each picture for the first time.
    void Steps(int subject, const QStringList& way, const char* next,
               const std::function<Widgets()>& shown, int steps, std::vector<double>& step,
               std::vector<double>& again, bool walk = true) {
        Open(subject);
        for (const QString& name : way)
            Click(In(kForms[subject], name));
        Settle();
        if (walk)
            ui::SharedPictures() = ui::PictureCache();
        for (int i = 0; i < steps && !failed; ++i) {
            step.push_back(Timed(In(kForms[subject], next), shown));
            again.push_back(Repainted(shown()));
        }
        Close(kForms[subject]);
    }
    Widgets Pictures(int subject, const QStringList& names) {
        Widgets widgets;
        for (const QString& name : names)
            widgets.push_back(In<QWidget>(kForms[subject], name));
        return widgets;
    }
    // A plain window of the size given, shown as a subject's window is.
    double OpenPlain(QSize size) {
        auto* mdi = In<QMdiArea>(nullptr, "mdiArea");
        auto* welcome = In<QWidget>(nullptr, "picMain");
        QMdiSubWindow* sub = nullptr;
        const double ms = Timed(nullptr, [&] {
            welcome->hide();
            sub = mdi->addSubWindow(new QWidget);
            sub->resize(size);
            sub->show();
            return Widgets{sub};
        });
        mdi->removeSubWindow(sub);
        delete sub;
        welcome->show();
        Settle();
        return ms;
    }
};

void Row(const std::string& what, const std::vector<double>& ms,
         const std::vector<double>& reference, const char* target) {
    const double median = Median(ms), ref = Median(reference);
    std::printf("%-22s %9.2f %11.2f %7.2f   %s\n", what.c_str(), median, ref,
                ref > 0 ? median / ref : 0.0, target);
}

} // namespace

int main(int argc, char** argv) {
    // The offscreen platform says at each window that it cannot pass on size hints.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& at, const QString& text) {
        if (!text.contains("propagateSizeHints"))
            std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, at, text)));
    });
    const int repetitions = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    // A screen of the size the start-up benchmark uses, unless told otherwise.
    QTemporaryFile screens;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && screens.open()) {
        screens.write(R"({"screens": [{"name": "bench", "x": 0, "y": 0, "width": 1600,
                          "height": 900, "logicalDpi": 96, "dpr": 1}]})");
        screens.flush();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toLocal8Bit());
    }
    Bench b;
    std::filesystem::copy_file(QUILLANE_LEARN_DLL, b.session.dir.Path() / "learn.dll");
    b.Settle();

    // Opening each subject's window, in turn with the plain window.
    std::vector<double> opens[4], plains[4];
    double first[4] = {};
    for (int r = 0; r <= repetitions && !b.failed; ++r) {
        for (int s = 0; s < 4 && !b.failed; ++s) {
            const double ms = b.Open(s);
            const QSize size =
                b.failed ? QSize() : b.session.host->WindowOf(kForms[s])->parentWidget()->size();
            b.Close(kForms[s]);
            if (r == 0)
                first[s] = ms;
            else
                opens[s].push_back(ms);
            plains[s].push_back(b.OpenPlain(size));
        }
    }
    // The Tarot memorise walk over the whole deck, and the Runes walk over
    // every stone but the last (which offers the test instead).
    std::vector<double> tarot, tarotAgain, runes, runesAgain;
    const auto card = [&] { return b.Pictures(2, {"picCardMemorize", "picCardMemorizeReversed"}); };
    const auto stone = [&] { return b.Pictures(3, {"picStone(0)", "picStone(1)"}); };
    for (int r = 0; r < repetitions && !b.failed; ++r) {
        b.Steps(2, {"cmdSetOption"}, "cmdNext", card, 77, tarot, tarotAgain);
        b.Steps(3, {"cmdMemorize"}, "cmdNext", stone, 22, runes, runesAgain);
    }
    // The Numerology report of a test over every subject: its last answer.
    QStringList answers = {"optMain(1)", "cmdNext", "optOption(1)", "cmdNext2"};
    for (int i = 0; i <= 14; ++i)
        answers << QString("chkSubject(%1)").arg(i);
    answers << "cmdNext3";
    for (int k = 0; k < 74; ++k)
        answers << "optChoice(2)"
                << "cmdNextQuestion";
    answers << "optChoice(2)";
    const auto view = [&] {
        auto* text = b.In<QTextEdit>(kForms[1], "RTBTestResult");
        return Widgets{text ? text->viewport() : nullptr};
    };
    std::vector<double> report, reportAgain;
    for (int r = 0; r < repetitions && !b.failed; ++r)
        b.Steps(1, answers, "cmdNextQuestion", view, 1, report, reportAgain, false);

    if (b.failed) {
        std::fprintf(stderr, "a window did not show what was expected\n");
        return 1;
    }
    std::printf("repetitions: %d, medians in ms; the reference is measured in the same run\n",
                repetitions);
    std::printf("%-22s %9s %11s %7s   %s\n", "", "ms", "reference", "ratio", "target");
    const char* const names[4] = {"Astrology", "Numerology", "Tarot", "Runes"};
    bool met = true;
    for (int s = 0; s < 4; ++s) {
        met = met && Median(opens[s]) <= 15;
        Row(std::string("open ") + names[s], opens[s], plains[s],
            "15 ms; reference: a plain window of its size");
        std::printf("%-22s %9.2f\n", "  its first opening", first[s]);
    }
    Row("Tarot walk step", tarot, tarotAgain, "2 ms; reference: its pictures again");
    Row("Runes walk step", runes, runesAgain, "2 ms; reference: its pictures again");
    Row("Numerology report", report, reportAgain, "20 ms; reference: the report again");
    met = met && Median(tarot) <= 2 && Median(runes) <= 2 && Median(report) <= 20;
    return met ? 0 : 1;
}
