// The floor for start-up: the least a Qt program does to show one empty
// maximised main window.
#include <QApplication>
#include <QMainWindow>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle("Floor");
    window.setGeometry(window.screen()->availableGeometry());
    window.showMaximized();
    return QApplication::exec();
}
