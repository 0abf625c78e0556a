#pragma once
// The walk through the selected stones: process-wide state beside the tables,
// so that it outlives the Runes window; closing the window clears none of it.
#include "common/Json.h"
#include "common/Picture.h"
#include "common/VBArray.h"

#include <cstdint>

namespace quillane::modLearnRunes {

// Work array of Memorize_Stone: stone number or -1; entry 24 is never used.
extern VBArray<std::int16_t> intStoneSlot;
// The selected stones in ascending order, then one spare entry holding 0: the
// upper bound is the number of selected stones.
extern VBArray<std::int16_t> intSelectedStone;
// Position of the walk in intSelectedStone.
extern std::int16_t intStoneIndex;

// Entry n of the picture list IMG (1 to 25). A number outside the list is a
// run-time error, as asking an image list for an entry it lacks always was.
Picture Img(long entry);

// The walk's variables and the six tables, for the driver.
Json Variables();

} // namespace quillane::modLearnRunes
