#include "GoalFile.h"

#include <charconv>
#include <stdexcept>

namespace quillane::modGoals {

namespace {

// Reads fields one after another, as the file's notation has them.
class FieldReader {
public:
    explicit FieldReader(const std::string& text) : text_(text) {}

    bool AtEnd() {
        // Line ends and blanks after the last goal are no goal.
        while (pos_ < text_.size() && (Blank(text_[pos_]) || LineEnd(text_[pos_])))
            Advance();
        return pos_ >= text_.size();
    }
    int Line() const { return line_; }

    std::string String() {
        SkipBlanks();
        if (pos_ < text_.size() && text_[pos_] == '"') {
            Advance();
            const std::size_t start = pos_;
            while (pos_ < text_.size() && text_[pos_] != '"')
                Advance();
            if (pos_ >= text_.size())
                throw std::runtime_error("a quoted text has no end");
            std::string value = text_.substr(start, pos_ - start);
            Advance();
            EndField();
            return value;
        }
        return Raw();
    }
    Date DateField() {
        const std::string raw = Raw();
        if (raw.size() != 12 || raw.front() != '#' || raw.back() != '#')
            throw std::runtime_error("\"" + raw + "\" is not a date");
        auto date = Date::FromIso(raw.substr(1, 10));
        if (!date)
            throw std::runtime_error("\"" + raw + "\" is not a date");
        return *date;
    }
    std::int16_t Boolean() {
        const std::string raw = Raw();
        if (raw == "#TRUE#")
            return -1;
        if (raw == "#FALSE#")
            return 0;
        throw std::runtime_error("\"" + raw + "\" is neither #TRUE# nor #FALSE#");
    }
    std::int16_t Integer() {
        const std::string raw = Raw();
        std::int16_t value = 0;
        const auto [end, error] = std::from_chars(raw.data(), raw.data() + raw.size(), value);
        if (raw.empty() || error != std::errc() || end != raw.data() + raw.size())
            throw std::runtime_error("\"" + raw + "\" is not a whole number");
        return value;
    }

private:
    static bool Blank(char c) { return c == ' ' || c == '\t'; }
    static bool LineEnd(char c) { return c == '\r' || c == '\n'; }
    void Advance() {
        if (text_[pos_] == '\n' ||
            (text_[pos_] == '\r' && (pos_ + 1 >= text_.size() || text_[pos_ + 1] != '\n')))
            ++line_;
        ++pos_;
    }
    void SkipBlanks() {
        while (pos_ < text_.size() && Blank(text_[pos_]))
            Advance();
    }
    // An unquoted field: up to the next comma or line end.
    std::string Raw() {
        SkipBlanks();
        if (pos_ >= text_.size())
            throw std::runtime_error("the line ends before its last field");
        const std::size_t start = pos_;
        while (pos_ < text_.size() && text_[pos_] != ',' && !LineEnd(text_[pos_]))
            Advance();
        std::size_t end = pos_;
        while (end > start && Blank(text_[end - 1]))
            --end;
        EndField();
        return text_.substr(start, end - start);
    }
    // Passes over the rest of a field and its delimiter.
    void EndField() {
        while (pos_ < text_.size() && text_[pos_] != ',' && !LineEnd(text_[pos_]))
            Advance();
        if (pos_ < text_.size() && text_[pos_] == ',')
            Advance();
        else if (pos_ < text_.size()) {
            if (text_[pos_] == '\r' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '\n')
                Advance();
            Advance();
        }
    }

    const std::string& text_;
    std::size_t pos_ = 0;
    int line_ = 1;
};

std::string Flag(std::int16_t value) {
    return value ? "#TRUE#" : "#FALSE#";
}

} // namespace

ParsedGoals ParseGoals(const std::string& text) {
    ParsedGoals parsed;
    FieldReader reader(text);
    while (!reader.AtEnd()) {
        const int line = reader.Line();
        try {
            GoalRecord goal;
            goal.strGoalName = reader.String();
            goal.dtStartDate = reader.DateField();
            goal.dtEndDate = reader.DateField();
            goal.strGoalDesc = reader.String();
            goal.blnAchieved = reader.Boolean();
            goal.intPercent = reader.Integer();
            // The window shows only what its lists can hold.
            for (const Date& date : {goal.dtStartDate, goal.dtEndDate})
                if (date.Year() < 1980 || date.Year() > 2099)
                    throw std::runtime_error(date.Iso() + " lies outside the years 1980 to 2099");
            if (goal.intPercent < 0 || goal.intPercent > 100)
                throw std::runtime_error(std::to_string(goal.intPercent) + " is not a percentage");
            parsed.goals.push_back(std::move(goal));
        } catch (const std::runtime_error& e) {
            parsed.failedLine = std::max(line, reader.Line());
            parsed.failure = e.what();
            break;
        }
    }
    return parsed;
}

std::string FormatGoals(const std::vector<GoalRecord>& goals, long except) {
    std::string text;
    for (std::size_t i = 0; i < goals.size(); ++i) {
        if (long(i) == except)
            continue;
        const GoalRecord& g = goals[i];
        text += "\"" + g.strGoalName + "\",#" + g.dtStartDate.Iso() + "#,#" + g.dtEndDate.Iso() +
                "#,\"" + g.strGoalDesc + "\"," + Flag(g.blnAchieved) + "," +
                std::to_string(g.intPercent) + "\r\n";
    }
    return text;
}

} // namespace quillane::modGoals
