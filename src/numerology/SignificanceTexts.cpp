#include "numerology/NumerologyContent.h"

namespace quillane::modLearnNumerology::content {

// What each kind of number signifies, by subject index. These are also the
// answers of the test by significance, which compares them as whole strings.
constexpr std::array<std::string_view, kSubjectCount> kSignificanceTexts = {
    // 0: Life Path Number
    "This represents who you are at birth. It gives a broad outline of the various good and bad "
    "opportunities, struggles that you may have to face throughout your life.",
    // 1: Destiny / Expression Number
    "This number describes your vibration in the world and the tasks that you must achieve in this "
    "lifetime using the name given to you. This number more correctly reads as what you MUST "
    "strive to become with the development of talents you are born with.",
    // 2: Soul's Urge/ Heart's Desire Number
    "This number describes your inner cravings, your dreams, likes and dislikes, which are usually "
    "kept rather private. You can feel its effect on your everyday living style.",
    // 3: Inner Dreams / Personality Number
    "This number is associated with your personality or your nature. This signifies your comfort "
    "level in relationships and how much of yourself, you are willing to let others know about.",
    // 4: Birthday Number
    "This describes what may happen in your middle years. It also tells you about the various "
    "talents you possess.",
    // 5: Life Path / Expression Bridge Number
    "This number answers the 'whom' in you.  This number helps you understand yourself and close "
    "the gap with the path you are taking in your life. It helps you change the factors that are "
    "stopping you from leading a happy and prosperous life.",
    // 6: Heart Desire / Personality Bridge Number
    "This number tries to close the gap between how you think you are projecting yourself and the "
    "way people see you. This will help improve your relationships and let others see the real "
    "you.",
    // 7: Balance Number
    "This number describes how you react to life's challenges. It motivates us to handle life's "
    "challenges at best.",
    // 8: Maturity / Realization Number
    "This number describes your underlying wishes, desires, and goals for your later years. It "
    "gives you a definite direction in life and what an individual may contribute back to the "
    "universe with your unique expressions, creations, and knowledge cultivated from this life.",
    // 9: Pinnacle Number
    "This number represents moments in your life in which you understand the goals you have to "
    "achieve and the features you need to integrate into your character to achieve them. You can "
    "prepare yourself for the future.",
    // 10: Challenge Number
    "This number indicates what you must understand and learn in the various cycles of your life. "
    "This represents the challenges you will be facing in the coming future.",
    // 11: Life Path Period Number
    "This number describes the general influences on the life of a person. The first cycle helps "
    "you know yourself better and come to terms with your surroundings. The second cycle helps you "
    "understand your true self and develop your creative talents. The third cycle is the blooming "
    "period with more self-expression and complete understanding.",
    // 12: Personal Day Number
    "What you think, imagine and do during the day sets the platform and example for the days to "
    "come.",
    // 13: Personal Month Number
    "This number describes what your lessons are during the course of the month, the trends and "
    "particular influences that are affecting you personally.",
    // 14: Personal Year Number
    "This number describes the pattern of the particular year. Each year you work through one of "
    "the nine years that define your experiences in life. It is concurrent with the calendar year.",
};

} // namespace quillane::modLearnNumerology::content
