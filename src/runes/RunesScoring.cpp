#include "runes/ResumeNext.h"
#include "runes/modLearnRunesTest.h"

#include <string>

namespace quillane::modLearnRunesTest {

using runes::Resume;

bool ScoreTicks(Application& app, const ControlArray& boxes, std::int16_t& ticked,
                std::int16_t questionNumber) {
    const bool advanced = intTestLevel != 0;
    const int shown = advanced ? 8 : 5;
    const int rights = advanced ? 4 : 1;
    for (int i = 0; i < shown; ++i)
        Resume([&] {
            if (boxes(i).Value() == 1)
                ++ticked;
        });
    if (advanced) {
        if (ticked != 4) {
            app.MsgBox("You can select 4 options", MsgButtons::Ok, MsgIcon::Critical);
            return false;
        }
        // Follows the test above and so is never reached.
        if (ticked == 0) {
            app.MsgBox("You must select 4 options", MsgButtons::Ok, MsgIcon::Critical);
            return false;
        }
    } else {
        if (ticked > 1) {
            app.MsgBox("You can select 1 option", MsgButtons::Ok, MsgIcon::Critical);
            return false;
        }
        if (ticked == 0) {
            app.MsgBox("You must select 1 option", MsgButtons::Ok, MsgIcon::Critical);
            return false;
        }
    }
    intCorrect = 0;
    // By text: a tick counts once for every right entry that bears its text.
    for (int i = 0; i < shown; ++i)
        for (int j = 0; j < rights; ++j)
            Resume([&] {
                if (boxes(i).Value() == 1 && boxes(i).Caption() == strCorrectKeyword(j))
                    ++intCorrect;
            });
    Resume([&] {
        strTestResult(questionNumber - 1) =
            std::to_string(intCorrect) + (advanced ? " Correct Out of 4" : " Correct Out of 1");
    });
    intTotalCorrect = std::int16_t(intTotalCorrect + intCorrect);
    return true;
}

} // namespace quillane::modLearnRunesTest
