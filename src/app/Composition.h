#pragma once
// The program put together: the one place that knows every subject. The
// desktop program, the driver and the tests all start from here.
#include "common/Application.h"

namespace quillane::ui {
class FormHost;
}

namespace quillane::app {

// Registers every form and module of the program with the application.
void RegisterProgram(Application& app);

// The application with every form and module, around the services it is
// given; the process-wide parts (the generator's clock, the card store's
// picture decoder) read those services while it lives.
class Program {
public:
    explicit Program(const Services& services);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Application& App() { return app_; }

private:
    Application app_;
};

// Registers the desktop window of every form.
void RegisterWindows(ui::FormHost& host);

} // namespace quillane::app
