#pragma once
// Work that the desktop program hands to a second thread as it starts,
// because the launcher would otherwise wait for it on the first: the font
// configuration, read from many small files before the first text is
// measured, and the session bus, which the accessibility bridge connects to
// as the first widget tells it of a change. Where the platform has neither,
// the threads do nothing.
#include <thread>

namespace quillane::app {

// Starts reading the font configuration; called before the application
// exists. Join the thread before the first text is measured, or the
// configuration is read a second time.
std::jthread ReadFontConfiguration();

// Starts connecting to the session bus; called once the application exists,
// and the thread joined before it ends.
std::jthread ConnectSessionBus();

} // namespace quillane::app
