#pragma once
// The Runes windows run under resume-next: a statement that fails is skipped
// in silence and the handler goes on with the next one, leaving whatever the
// statement would have changed as it was.
//
// A handler is written as a sequence of statements; each statement that can
// fail (an array read out of its bounds, a picture that does not exist, a
// file that cannot be opened) runs through Resume. Every event handler of the
// two Runes forms is also wired through Guard, so that a failure no statement
// wrapper caught still ends only that handler, never the program.
#include <functional>

namespace quillane::runes {

// Runs one statement; true when it ran to its end, false when it failed and
// was skipped.
bool Resume(const std::function<void()>& statement) noexcept;

// An event handler that never lets a failure out.
std::function<void()> Guard(std::function<void()> handler);
std::function<void(int)> Guard(std::function<void(int)> handler);

} // namespace quillane::runes
