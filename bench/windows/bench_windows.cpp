// quillane-bench-windows: how long the subject windows take to open and to
// take a step, in the process, on the offscreen platform with a 1600 by 900
// screen.
//
// - Opening: from the click on the launcher's button until the subject's
//   window has been painted. Reference: a plain window of the same size,
//   shown in the launcher the same way.
// - A step of the Tarot memorise walk and of the Runes walk: from the click
//   on Next until its pictures (upright and turned) have been painted, each
//   card or stone met for the first time. Reference: painting the same
//   pictures again.
// - The Numerology report: from the last answer of a 75-question test until
//   the report has been painted. Reference: painting the report again.
//
// Each figure is the median of several repetitions, taken in turn with its
// reference; the first opening of each window is shown on its own.
// Targets: 15 ms an opening, 2 ms a step, 20 ms the report.
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
#include <set>
#include <string>
#include <vector>

using namespace quillane;

namespace {

constexpr double kOpenTargetMs = 15, kStepTargetMs = 2, kReportTargetMs = 20;

// Runs the event loop until each widget has had its paint event; the time
// from `start`, in milliseconds, or a negative figure after ten seconds.
class Painted : public QObject {
public:
    explicit Painted(const std::vector<QWidget*>& widgets) {
        for (QWidget* w : widgets) {
            waiting_.insert(w);
            w->installEventFilter(this);
        }
    }
    double Wait(const QElapsedTimer& start) {
        while (!waiting_.empty()) {
            if (start.elapsed() > 10000) {
                for (QObject* o : waiting_)
                    std::fprintf(stderr, "%s was not painted\n", qPrintable(o->objectName()));
                return -1;
            }
            QCoreApplication::processEvents();
        }
        return double(start.nsecsElapsed()) / 1e6;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            waiting_.erase(watched);
        return QObject::eventFilter(watched, event);
    }

private:
    std::set<QObject*> waiting_;
};

double Median(std::vector<double> v) {
    if (v.empty())
        return -1;
    std::sort(v.begin(), v.end());
    return v.size() % 2 ? v[v.size() / 2] : (v[v.size() / 2 - 1] + v[v.size() / 2]) / 2;
}

struct Bench {
    quillane::testing::DesktopSession session;
    bool failed = false;

    QWidget* Launcher() const { return session.MainWindow(); }
    QWidget* Window(const char* form) const { return session.host->WindowOf(form); }
    template <class W = QAbstractButton> W* In(const char* form, const QString& name) const {
        QWidget* root = Window(form);
        W* w = root ? root->findChild<W*>(name) : nullptr;
        if (!w)
            std::fprintf(stderr, "%s has no %s\n", form, qPrintable(name));
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
        else
            failed = true;
    }
    // Clicks and waits for the widgets to be painted; the milliseconds.
    double Timed(QAbstractButton* button, const std::function<std::vector<QWidget*>()>& shown) {
        QElapsedTimer start;
        start.start();
        Click(button);
        const std::vector<QWidget*> widgets = shown();
        if (failed || std::count(widgets.begin(), widgets.end(), nullptr)) {
            failed = true;
            return -1;
        }
        const double ms = Painted(widgets).Wait(start);
        failed = failed || ms < 0;
        return ms;
    }
    // Paints the widgets again; the milliseconds.
    double Repainted(const std::vector<QWidget*>& widgets) {
        Painted painted(widgets);
        QElapsedTimer start;
        start.start();
        for (QWidget* w : widgets)
            w->update();
        return painted.Wait(start);
    }

    // Opens a subject by its button; the milliseconds until it is painted.
    double Open(int subject, const char* form) {
        auto* button =
            Launcher()->findChild<QAbstractButton*>(QString("cmdSelectOption(%1)").arg(subject));
        return Timed(button, [&] {
            QWidget* w = Window(form);
            return std::vector<QWidget*>{w ? w->parentWidget() : nullptr};
        });
    }
    // Opens a subject and starts its walk, then takes the steps with Next,
    // each picture met for the first time: the milliseconds of each step until
    // its pictures (upright and turned) are painted, and of painting them again.
    void Walk(int subject, const char* form, const char* start, const QStringList& pictures,
              int steps, std::vector<double>& step, std::vector<double>& again) {
        Open(subject, form);
        Click(In(form, start));
        Settle();
        ui::SharedPictures() = ui::PictureCache();
        const auto shown = [&] {
            std::vector<QWidget*> widgets;
            for (const QString& picture : pictures)
                widgets.push_back(In<QWidget>(form, picture));
            return widgets;
        };
        for (int i = 0; i < steps && !failed; ++i) {
            step.push_back(Timed(In(form, "cmdNext"), shown));
            again.push_back(Repainted(shown()));
        }
        Close(form);
    }
    // A plain window of the size given, shown as a subject's window is.
    double OpenPlain(QSize size) {
        auto* mdi = Launcher()->findChild<QMdiArea*>("mdiArea");
        QWidget* welcome = Launcher()->findChild<QWidget*>("picMain");
        QElapsedTimer start;
        start.start();
        welcome->hide();
        QMdiSubWindow* sub = mdi->addSubWindow(new QWidget);
        sub->resize(size);
        sub->show();
        const double ms = Painted({sub}).Wait(start);
        mdi->removeSubWindow(sub);
        delete sub;
        welcome->show();
        Settle();
        return ms;
    }
};

void Row(const char* what, double median, double reference, const char* target) {
    std::printf("%-22s %9.2f %11.2f %7.2f   %s\n", what, median, reference,
                reference > 0 ? median / reference : 0.0, target);
}

} // namespace

int main(int argc, char** argv) {
    // The offscreen platform says at each window that it cannot pass on size
    // hints.
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (!text.contains("propagateSizeHints"))
                std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
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
    const char* const forms[4] = {"frmLearnAstrologyMain", "frmLearnNumerologyMain",
                                  "frmLearnTarotMain", "frmLearnRunesMain"};
    const char* const names[4] = {"Astrology", "Numerology", "Tarot", "Runes"};
    std::vector<double> opens[4], plains[4];
    double first[4] = {};
    for (int r = 0; r <= repetitions && !b.failed; ++r) {
        for (int s = 0; s < 4 && !b.failed; ++s) {
            const double ms = b.Open(s, forms[s]);
            const QSize size =
                b.Window(forms[s]) ? b.Window(forms[s])->parentWidget()->size() : QSize();
            b.Close(forms[s]);
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
    for (int r = 0; r < repetitions && !b.failed; ++r) {
        b.Walk(2, forms[2], "cmdSetOption", {"picCardMemorize", "picCardMemorizeReversed"}, 77,
               tarot, tarotAgain);
        b.Walk(3, forms[3], "cmdMemorize", {"picStone(0)", "picStone(1)"}, 22, runes, runesAgain);
    }

    // The Numerology report of a test over every subject.
    std::vector<double> report, reportAgain;
    for (int r = 0; r < repetitions && !b.failed; ++r) {
        const char* form = forms[1];
        b.Open(1, form);
        for (const char* step : {"optMain(1)", "cmdNext", "optOption(1)", "cmdNext2"})
            b.Click(b.In(form, step));
        for (int i = 0; i <= 14; ++i)
            b.Click(b.In(form, QString("chkSubject(%1)").arg(i)));
        b.Click(b.In(form, "cmdNext3"));
        for (int k = 0; k < 74; ++k) {
            b.Click(b.In(form, "optChoice(2)"));
            b.Click(b.In(form, "cmdNextQuestion"));
        }
        b.Click(b.In(form, "optChoice(2)"));
        b.Settle();
        const auto view = [&] {
            auto* text = b.In<QTextEdit>(form, "RTBTestResult");
            return std::vector<QWidget*>{text ? text->viewport() : nullptr};
        };
        report.push_back(b.Timed(b.In(form, "cmdNextQuestion"), view));
        reportAgain.push_back(b.Repainted(view()));
        b.Close(form);
    }

    if (b.failed) {
        std::fprintf(stderr, "a window did not show what was expected\n");
        return 1;
    }
    std::printf("repetitions: %d, medians in ms; the reference is measured in the same run\n",
                repetitions);
    std::printf("%-22s %9s %11s %7s   %s\n", "", "ms", "reference", "ratio", "target");
    bool met = true;
    for (int s = 0; s < 4; ++s) {
        const double median = Median(opens[s]);
        met = met && median <= kOpenTargetMs;
        Row((std::string("open ") + names[s]).c_str(), median, Median(plains[s]),
            "15 ms; reference: a plain window of its size");
        std::printf("%-22s %9.2f\n", "  its first opening", first[s]);
    }
    const double tarotStep = Median(tarot), runesStep = Median(runes), shown = Median(report);
    Row("Tarot walk step", tarotStep, Median(tarotAgain), "2 ms; reference: its pictures again");
    Row("Runes walk step", runesStep, Median(runesAgain), "2 ms; reference: its pictures again");
    Row("Numerology report", shown, Median(reportAgain), "20 ms; reference: the report again");
    met =
        met && tarotStep <= kStepTargetMs && runesStep <= kStepTargetMs && shown <= kReportTargetMs;
    return met ? 0 : 1;
}
