// The long texts of the rune stones: upright and reversed meanings for all
// twenty-four stones, and the merkstave meanings of the seven stones that
// cannot be reversed. The other seventeen take their reversed text for the
// merkstave position as well; LoadRuneTables copies it there.
//
// Every text is exact to the character: lengths, doubled blanks and the
// spelling of the older texts are part of the data and are checked by tests.
#include "runes/RuneMeanings.h"

namespace quillane::modLearnRunes::content {

const std::array<std::string_view, kStones> kNormalMeaning = {
    // 0 Fehu
    "The meaning of the rune is 'cattle' or the main livelihood of the tribe. It is a "
    "positive rune which also means material gain, new financial   opportunities and "
    "success. It recommends people to distribute gifts freely if they wish to be "
    "prosperous. In other words, people should share their wealth and not be selfish. "
    "Good time to invest in buying and selling. It also increases intuitive abilities, "
    "increases the depth of knowledge and brings more focus into your life.\r\n"
    "This rune may be linked to Frey or Freya thus making it a strong omen for "
    "fertility. This rune should never be taken lightly.",
    // 1 Uruz
    "The rune represents 'aurochs' or wild bison like animals. It carries the raw strength, "
    "endurance and untamed power of those beasts. This is a rune of good health and vitality, and "
    "it brings the courage to face every challenge that comes your way. It often marks the start "
    "of a fresh phase in your life, when opportunities open up and your efforts are rewarded.\r\n"
    "The rune also speaks of the spirit that drives you forward. Trust your instincts now, and "
    "keep your body and your mind in harmony.",
    // 2 Thurisaz
    "This is also known as the troll or 'thorn' rune. Like the thorn that guards the rose, or the "
    "hammer of Thor that defends the gods against the giants, it is a rune of protection and of "
    "forceful action, a power that can break down whatever stands in your way. Used wisely it "
    "shields you and your home from harm; used carelessly it can turn against you and cause "
    "destruction. The rune asks you to think before you act and to use your willpower with care. A "
    "big decision may have to be made soon, and this rune promises that you have the strength to "
    "make it. It can also mean a meeting with someone who will change your views or open a long "
    "closed door in your life.",
    // 3 Ansuz
    "This rune means 'god' or 'deity'. It belongs to Odin, the father of the gods, who hung nine "
    "nights on the world tree to win the runes for mankind. It rules wisdom, the spoken word and "
    "messages from others or from within. You may get good advice from an older person, pass an "
    "examination or find the right words at the right moment. It promises knowledge, a fair "
    "judgment and a rebirth of the spirit.",
    // 4 Raidho
    "This rune represents the 'wheel of life'. Travel, movement and the rhythm that carries all "
    "things forward are its domain. A journey may be ahead of you, either a real one or a journey "
    "of the spirit. The rune favors moving house, changing jobs and setting out on new paths. It "
    "also asks you to find your own pace, and to keep your life in order. Things will go the right "
    "way if you act at the right time and listen to your own inner voice.",
    // 5 Kenaz
    "This is the 'fire' rune. Picture the torch that lights the way and the warmth of the hearth. "
    "It brings knowledge, clarity and creative power, and it can mean the start of a new "
    "relationship or a renewed passion. Things that were hidden will come to light. The rune "
    "promises a time of learning, fertile ideas and good health for you and your kin.",
    // 6 Gebo
    "This is the rune of 'exchange'. Gifts given and received, partnership and the bond between "
    "any two people are its themes. It can mean a marriage, a business partnership or a friendship "
    "that grows stronger. The rune reminds you that each gift asks for something in return and "
    "that a balance must be kept. It promises generosity, harmony and help when you need it. Be "
    "open to what is offered, and give freely of what you have.",
    // 7 Wunjo
    "This rune is referred to as the 'wish card' and is the happiness rune. Joy, comfort and the "
    "fulfillment of your wishes are on the way. Your troubles may be coming to an end and a time "
    "of pleasure and success lies ahead. The rune promises harmony at home and at work, and good "
    "fellowship with all the people around you.",
    // 8 Hagalaz
    "This rune means 'hail' with respect to hailstones. Hail falls without warning and "
    "breaks what it strikes, yet melting it waters the ground for new growth. The rune "
    "stands for sudden change and for forces beyond your control. Plans may be upset and "
    "events may seem to work against you. Yet this change is needed for your growth. The "
    "rune promises that what is destroyed will make room for better things, and that you "
    "will be protected through the storm.",
    // 9 Nauthiz
    "This is the 'need' rune. Hardship and the lessons of want are its message. Things might not "
    "go your way for a time and you will need patience. The rune asks you to see what you truly "
    "need rather than what you crave. It promises that need will teach you strength and self "
    "reliance.",
    // 10 Isa
    "This is the 'ice' rune. It marks a standstill, a time when everything seems frozen and "
    "nothing moves forward. Plans may come to a halt, and feelings may cool between you and those "
    "you love. Do not force matters now, as pushing against the ice only wears you out. The rune "
    "asks you to wait, to turn inward and to gather your strength. It promises that the thaw will "
    "come in its own time, and that what was frozen will be kept safe until then.",
    // 11 Jera
    "This rune means the 'harvest'. It marks the turning of the year and the reward that comes "
    "after hard, honest work. What you have sown will now be reaped, but only when its proper "
    "season comes. The rune asks for patience and right action. It promises success, plenty and "
    "the completion of a whole cycle in your life.",
    // 12 Eihwaz
    "This is the 'yew' rune, the wood used in rune craft and making bows. The yew is an "
    "evergreen tree that lives for centuries and is linked to both death and life. The "
    "rune stands for endurance, defense and the links between the worlds. It promises "
    "that you will come through a difficult time and that an old matter will reach a "
    "good end at last.",
    // 13 Perthro
    "This means a sudden dash of luck. It is the rune of the lot cup, of chance and of "
    "the secrets of fate. Something hidden may be revealed, or some unexpected gain may "
    "come your way. The rune also stands for birth and for the mysteries of women. It "
    "promises wisdom and good fortune, and it asks you to trust in the turn of events "
    "even when you cannot see where they lead.",
    // 14 Algiz
    "This rune means 'defense' and 'protection'. Its shape recalls the antlers of the elk and the "
    "hand raised to ward off harm. You are protected from danger now, and a friend or a higher "
    "power watches over you. The rune promises a safe refuge and sharpens your instincts so that "
    "you notice danger early.",
    // 15 Sowilo
    "This is the 'sun' rune which indicates victory. The power of the sun brings energy, vitality "
    "and success in all you do, and it chases away every doubt. Let your own light shine: the rune "
    "promises that your goals will be reached and that a time of happiness lies ahead.",
    // 16 Tiwaz
    "This is the rune of the 'warrior'. It is linked to Tyr, the god of law and justice, "
    "who gave his right hand to bind the wolf. It stands for courage, loyalty and "
    "victory in a just cause. A legal matter may soon go your way. The rune promises the "
    "strength to fight for what is right and the support of all who share your goals.",
    // 17 Berkano
    "This is the 'birch' rune. The birch is the first tree to grow green in spring, and the rune "
    "honors the mother who nurtures her children. It can mean the birth of a child, a new "
    "beginning or a time of healing. The rune promises growth, family happiness and the rebirth of "
    "hope.",
    // 18 Ehwaz
    "This is the 'horse' rune. Rider and horse must trust each other; the rune speaks of that "
    "trust and of steady progress. A change of home or a journey may lie ahead. The rune promises "
    "loyal allies and teamwork that carries you forward.",
    // 19 Mannaz
    "This is the 'man' rune, as an individual or as a race. The self and the bonds that tie you to "
    "all of humanity are its subjects. Look at yourself with honesty, and be open to the help "
    "others offer. The rune promises good relations with friends and family, and a sharp memory of "
    "the wisdom of your ancestors.",
    // 20 Laguz
    "This is the rune of 'intuitive knowledge' or 'water'. The sea, the lakes and the flow of life "
    "belong to it. Water shapes the hardest stone in time, and this rune asks you to follow the "
    "flow of events instead of fighting them. Your intuition is strong now, and your dreams may "
    "carry messages for you. Trust your feelings and let them guide your choices. The rune "
    "promises emotional healing, fertility and a life force that renews itself like the tides.",
    // 21 Ingwaz
    "This is the 'fertility' rune. It is linked to Ing, the god of the earth and of the harvest, "
    "and to male fertility. Like a seed that rests in the ground before it grows, you need a "
    "period of rest and of gathering your strength before a new phase of your life can begin. The "
    "rune promises the successful end of a project and the fresh energy to start yet another.",
    // 22 Dagaz
    "This is the 'day' rune. Dawn breaks after a long night, bringing the light of understanding. "
    "A great change for the better is near, and you may suddenly see your situation in a new "
    "light. The rune promises awakening, hope and growth. It is a good time to start something new "
    "or to take a bold step, as the day is on your side.",
    // 23 Othala
    "This is the 'inheritance' rune. The family home, the land and all that is handed down from "
    "one generation to the next belong to it. You may receive an inheritance, a gift of property "
    "or some help from an older relative. The rune promises security, prosperity and a strong bond "
    "with your family and your ancestors.",

};

const std::array<std::string_view, kStones> kReverseMeaning = {
    // 0 Fehu
    "When reversed it means stagnation, infertility and loss or failure. With a positive "
    "rune it indicates a delay. With a negative rune, it is better to give up the "
    "project undertaken.",
    // 1 Uruz
    "When reversed it indicates ill health. Your strength may be low and you may lack "
    "the will to go on. Opportunities may slip past you. With a positive rune it is only "
    "a short setback and your health will return. With a negative rune, you should rest "
    "and take care of yourself first.",
    // 2 Thurisaz
    "When reversed it shows end of good times and beginning of bad ones. You may act too "
    "hastily or get drawn into a quarrel. Beware of people who wish you harm. Keep calm "
    "and wait for brighter days.",
    // 3 Ansuz
    "You may be under the influence of malicious advice. Someone may be lying to you or "
    "hiding the truth, and a message may go astray. Check every promise before you rely "
    "on it. With a positive rune it is only a misunderstanding that will soon be cleared "
    "up. With a negative rune, do not sign anything or make any big decision for now.",
    // 4 Raidho
    "There may be a delay in your physical or spiritual journey. Travel plans may go "
    "wrong, or a move to a new house may have to be put off. With a positive rune the "
    "delay is short and does you no harm. With a negative rune, you may have to change "
    "your plans altogether.",
    // 5 Kenaz
    "It may lead to isolation or information being hidden from you. A relationship may cool or "
    "end, and your creative fire may burn low. Tiredness or illness may dim your spirits. Do not "
    "lose heart; the light will return in due time.",
    // 6 Gebo (cannot be reversed)
    "Gebo rune cannot be reversed. The meaning can be understood from the other runes "
    "that fall with it.",
    // 7 Wunjo
    "There may be some unhappiness or a third party causing trouble. Your plans may not "
    "bring the joy you hoped for. Be careful whom you trust with your secrets and plans, "
    "as gossip may hurt you.",
    // 8 Hagalaz (cannot be reversed)
    "This rune is not reversed.",
    // 9 Nauthiz
    "You may be on the wrong track. Stop and think again about what you want before you "
    "go on. A crisis may be very close, and you may feel bitter about what others have.",
    // 10 Isa (cannot be reversed)
    "This rune cannot be reversed. This will have to be read with the surrounding runes.",
    // 11 Jera (cannot be reversed)
    "This rune is non reversible and has to be read with the surrounding runes.",
    // 12 Eihwaz
    "This may be a bad time for you. Confusion and doubt may hold you back, and old problems may "
    "return. Fear of change may keep you clinging to what is already dead. Avoid risky plans.",
    // 13 Perthro
    "When reversed, this rune can mean death. More often it means the end of a phase, a "
    "secret coming out or an unpleasant surprise. Do not gamble now. Keep your money and "
    "secrets safe.",
    // 14 Algiz
    "This indicates vulnerability. You may be taken advantage of. Guard yourself well.",
    // 15 Sowilo (cannot be reversed)
    "This rune cannot be reversed.",
    // 16 Tiwaz
    "Your energy and creative flow may be blocked. You may lack the courage to stand up "
    "for yourself. You may feel beaten before you even begin. With a positive rune it is "
    "only a brief weakness. With a negative rune, a legal matter or a dispute at work "
    "may go against you.",
    // 17 Berkano
    "There may be some family problems or troubles on the domestic side. A loved one may need your "
    "support, a plan for the home may fail, or an old family quarrel may flare up. Be patient and "
    "kind with those close to you.",
    // 18 Ehwaz
    "You may be making false friends. A partnership may not be what it seems, and a move "
    "may be delayed. Think twice before you put trust in a new partner or sign a deal.",
    // 19 Mannaz
    "Non one can help you. You may feel alone and cut off from others. Look within for "
    "the answers you need. Friends may let you down and your plans may fall through for "
    "a while.",
    // 20 Laguz
    "This is a period of stagnation. You may be confused and your feelings may lead you "
    "astray. Do not make important choices on a mere whim. With a positive rune the "
    "confusion will pass before long. With a negative rune, you may be deceived by "
    "someone close to you or drown in your own fears.",
    // 21 Ingwaz (cannot be reversed)
    "This is a non reversible rune.",
    // 22 Dagaz (cannot be reversed)
    "This is a nonreversible rune.",
    // 23 Othala
    "This may mean some delay in work or unexpected backing out of help. A family "
    "quarrel over money, land or property may arise between relatives. With a positive "
    "rune the trouble will be settled in time. With a negative rune, you may lose "
    "something that you had counted on, so keep your affairs in order.",
};

const std::array<OwnMarkstave, kOwnMarkstaveCount> kOwnMarkstaveMeaning = {{
    // Gebo
    {6, "There may be some loneliness in your life. You may tend to over sacrifice more than "
        "needed. You may also be dependent on others."},
    // Hagalaz
    {8, "There may be a natural disaster or catastrophe. It may also lead to pain, suffering "
        "and disillusionment."},
    // Isa
    {10, "There may be some dullness in your life. This is a time for deceit and treachery."},
    // Jera
    {11, "There may be sudden set backs. This may be a bad time for starting some new venture."},
    // Sowilo
    {15, "You may face the wrath of God.  You may also be in for some bad advice from people "
         "as you are gulliable."},
    // Ingwaz
    {21, "This signifies a period of hard labor and work. There may be movement but no end is "
         "achievement. This may also refer to impotency."},
    // Dagaz
    {22, "This is a complete coming full circle rune. Amy also stand for hopelessness."},
}};

} // namespace quillane::modLearnRunes::content
