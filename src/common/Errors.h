#pragma once
// A failure that ends the program: a file that comes with the program is
// missing or broken. The application shows one error box naming the file and
// what failed, and ends without writing anything half-way.
#include <stdexcept>
#include <string>

namespace quillane {

class FatalError : public std::runtime_error {
public:
    FatalError(std::string file, const std::string& what)
        : std::runtime_error(what), file_(std::move(file)) {}
    const std::string& File() const { return file_; }

private:
    std::string file_;
};

// A run-time error with its classic number (9 subscript out of range, 380
// invalid property value, ...). Windows that run under resume-next skip the
// statement that raised it.
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(int number, const std::string& what) : std::runtime_error(what), number_(number) {}
    int Number() const { return number_; }

private:
    int number_;
};

} // namespace quillane
