#include "astrology/AstrologyRun.h"
#include "common/StateJson.h"

#include "astrology/modLearnAstrology.h"
#include "common/Numbers.h"
#include "common/Random.h"

namespace quillane::astrology {

namespace mla = modLearnAstrology;

long HighestIndex(int mainCategory) {
    return long(mla::NamesColumn(mainCategory).size()) - 1;
}

std::int16_t DrawOver(int n) {
    // Single precision throughout, as the generator's numbers are: a product
    // that lands on a half goes to the even neighbour.
    const float product = Rnd() * float(n);
    return std::int16_t(CInt(product));
}

void CopyRunColumns(RunState& run) {
    mla::LoadCategoryTables(run.intMainIndex);
    const auto values = mla::ValuesColumn(run.intMainIndex, run.intSubIndex);
    const auto names = mla::NamesColumn(run.intMainIndex);
    const long upper = HighestIndex(run.intMainIndex);
    run.strValues.ReDim(upper);
    run.strNames.ReDim(upper);
    for (long i = 0; i <= upper; ++i) {
        run.strValues(i) = values[std::size_t(i)];
        run.strNames(i) = names[std::size_t(i)];
    }
}

namespace {
bool StandsIn(std::int16_t value, const VBArray<std::int16_t>& rows, long last) {
    for (long i = 0; i <= last; ++i)
        if (rows(i) == value)
            return true;
    return false;
}
} // namespace

void SetUpTest(RunState& run) {
    const long U = HighestIndex(run.intMainIndex);
    run.intOrder.ReDim(U);
    run.strCorrect.ReDim(U);
    run.strUserAnswer.ReDim(U);
    CopyRunColumns(run);
    for (long q = 0; q < U; ++q)
        run.intOrder(q) = -1;
    for (long q = 0; q < U; ++q) {
        std::int16_t row = DrawOver(int(U - 1));
        while (StandsIn(row, run.intOrder, q))
            row = DrawOver(int(U - 1));
        run.intOrder(q) = row;
        run.strCorrect(q) = run.strValues(row);
    }
}

std::array<std::int16_t, 6> DrawChoices(std::int16_t rightRow) {
    std::array<std::int16_t, 6> intChoice{-1, -1, -1, -1, -1, -1};
    auto taken = [&intChoice](std::int16_t row, int last) {
        for (int i = 0; i <= last; ++i)
            if (intChoice[std::size_t(i)] == row)
                return true;
        return false;
    };
    for (int c = 0; c <= 4; ++c) {
        std::int16_t row = DrawOver(4);
        while (taken(row, c))
            row = DrawOver(4);
        intChoice[std::size_t(c)] = row;
    }
    intChoice[std::size_t(DrawOver(4))] = rightRow;
    return intChoice;
}

std::vector<ReportPiece> ResultPieces(const RunState& run) {
    const long U = run.intOrder.UBound();
    std::vector<ReportPiece> out;
    auto bold = [&out](std::string text) { out.push_back({std::move(text), true}); };
    auto plain = [&out](std::string text) { out.push_back({std::move(text), false}); };
    bold("Quillane Learn Astrology Result\r\n\r\n");
    bold(run.strMainCaption + " - " + run.strSubCaption + "\r\n\r\n");
    for (long q = 0; q < U; ++q) {
        const std::int16_t row = run.intOrder(q);
        bold("Question: " + run.strNames(row) + "\r\n");
        bold("Correct Answer: ");
        plain(run.strCorrect(row) + "\r\n");
        bold("Your Answer: ");
        plain(run.strUserAnswer(q) + "\r\n\r\n");
    }
    bold(std::to_string(ResultScore(run)) + " Correct out of " + std::to_string(U) + " Questions");
    return out;
}

std::int16_t ResultScore(const RunState& run) {
    std::int16_t score = 0;
    for (long q = 0; q < run.intOrder.UBound(); ++q)
        if (run.strUserAnswer(q) == run.strCorrect(run.intOrder(q)))
            ++score;
    return score;
}

Json RunVariables(const RunState& run) {
    return Json::Object{
        {"intMainIndex", run.intMainIndex},       {"intSubIndex", run.intSubIndex},
        {"strMainCaption", run.strMainCaption},   {"strSubCaption", run.strSubCaption},
        {"intCurrent", run.intCurrent},           {"strValues", ListJson(run.strValues)},
        {"strNames", ListJson(run.strNames)},     {"intOrder", ListJson(run.intOrder)},
        {"strCorrect", ListJson(run.strCorrect)}, {"strUserAnswer", ListJson(run.strUserAnswer)},
    };
}

} // namespace quillane::astrology
