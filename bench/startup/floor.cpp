// The floors for start-up. Bare: the least a Qt program does to show one
// empty maximised main window. Text (with the argument "text"): the same
// window with a menu bar and a line of text, so fonts and the menu load as
// in any real program.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const bool text = argc > 1 && QString(argv[1]) == "text";
    QMainWindow window;
    window.setWindowTitle(text ? "Text floor" : "Floor");
    if (text) {
        window.menuBar()->addMenu("&File")->addAction("E&xit", &app, &QApplication::quit);
        window.menuBar()->addMenu("&Help");
        window.setCentralWidget(new QLabel("Welcome to the floor of start-up"));
    }
    window.setGeometry(window.screen()->availableGeometry());
    window.showMaximized();
    return QApplication::exec();
}
