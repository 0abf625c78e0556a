// Sign paragraphs: what each sign is like at its best and at its worst.
#include "astrology/AstrologyParagraphs.h"

namespace quillane::modLearnAstrology::paragraphs {

const std::array<std::string_view, 12> kSignPositive = {
    // 0: Aries
    "You are born pioneers and like to be the first in whatever you take up. Energy and enthusiasm "
    "come naturally to you, and you bring life to any gathering. Challenges do not frighten you; "
    "if anything, they bring out your best. In your dealings you are direct and honest, and you "
    "say what you mean. Decisions come quickly, and so does action. Independence matters to you, "
    "and you prefer to make your own way in the world. You are competitive and love to win, yet "
    "you enjoy the contest for its own sake. When a friend is in trouble you give your time "
    "generously. Setbacks rarely keep you down for long, and you are always ready to start afresh.",
    // 1: Taurus
    "You are patient and dependable, and people know that they can rely on you. Both your feet are "
    "firmly on the ground. Once you have set a goal you work steadily towards it and rarely give "
    "up. Comfort, good food and beautiful surroundings mean a great deal to you, and your senses "
    "of touch, taste and colour are fine. In love you are loyal and devoted. You are careful with "
    "money and usually build up security for the future. You are calm and gentle by nature, and it "
    "takes a great deal to upset you. Many of you have a warm, pleasant voice and a gift for music "
    "or gardening.",
    // 2: Gemini
    "Curiosity drives you, and you love to learn something new every day. Your wit is quick and "
    "your sense of humour lively. You are excellent talkers and can make conversation with anyone. "
    "You are versatile and can handle several tasks at once, and new people and new places hold no "
    "fears for you. A youthful spirit stays with you all your life. Words are your tools: many of "
    "you write or speak well. Reading, travelling and meeting friends fill your days. You see both "
    "sides of a question with ease. A room feels brighter simply because you have walked into it.",
    // 3: Cancer
    "You are caring and protective towards your family and friends. Your home means a great deal "
    "to you, and you like to make it a warm and welcoming place. Intuition tells you what others "
    "feel before they say a word. Through thick and thin you stand by the people you love. Your "
    "memory is remarkable, especially for the past and for family history. You are sympathetic, "
    "and others often turn to you for comfort. You are cautious and think carefully before you "
    "act. Behind a quiet exterior lies a rich and imaginative inner life. What matters to you, you "
    "hold on to with great tenacity. You are thrifty and look after what you have. You are "
    "wonderful hosts, and nothing pleases you more than feeding your guests well.",
    // 4: Leo
    "", // joined at load time from the two halves below
    // 5: Virgo
    "You are very modest by nature. Hard work does not frighten you, and you take pride in doing a "
    "job well. Your mind is sharp and analytical, and it notices details that others miss. Being "
    "useful to others gives you real satisfaction. Neatness and order please you, and you like "
    "everything to be in its proper place. You are reliable and keep your promises. Health, diet "
    "and the care of the body interest many of you. You are intelligent and quick to learn new "
    "skills. Often you serve others without expecting any reward. As careful planners you can turn "
    "chaos into order. In friendship you are sincere and honest.",
    // 6: Libra
    "Charm and grace are your gifts, and you make friends wherever you go. Peace and harmony "
    "matter so much to you that you will do your best to avoid a quarrel. You are fair minded and "
    "always try to see both sides of an argument. Diplomatic as well, you can smooth over a "
    "difficult situation with a few kind words. Your taste in art, music and fashion is fine. You "
    "are romantic, and a close partnership means more to you than almost anything else. You are "
    "sociable, polite and well mannered. Bringing people together and finding a balance that suits "
    "everyone is something you do better than most.",
    // 7: Scorpio
    "You are determined, and once you set your mind on something nothing can stop you. Everything "
    "is felt deeply and passionately. Those you trust can count on your loyalty and protection. "
    "Pretence never fools you for long, since you see through it at once. Resourceful and shrewd, "
    "you are good at finding hidden solutions. You are brave, and crises that would break others "
    "only make you stronger. Your magnetic presence draws people to you. Research attracts you, "
    "and you love to get to the bottom of a mystery. A secret told to you is safe. With great "
    "powers of endurance, you can rebuild your life from nothing. In love you are intensely "
    "faithful. Hard truths do not frighten you, and many of you have a talent for medicine, "
    "psychology or detective work. Your friendship, once given, is given for life.",
    // 8: Sagittarius
    "Optimism and cheerfulness are second nature to you, and you always look on the bright side of "
    "life. Freedom and adventure call to you; you are happiest when you are on the move. You are "
    "honest and straightforward, generous and open hearted. Your good sense of humour makes people "
    "laugh. Philosophy, religion and the big questions of life interest you deeply. Travel is a "
    "passion, and so is learning about other countries and cultures. Your enthusiasm is catching. "
    "You are broad minded and tolerant of other points of view. Many of you are good teachers who "
    "enjoy sharing what you know.",
    // 9: Capricorn
    "You are ambitious and have a clear idea of where you want to go. Discipline and hard work "
    "come naturally to you. Patiently, one careful step at a time, you climb to the top. You are "
    "responsible and can be trusted with serious tasks. You handle money with practical common "
    "sense. Your sense of humour is dry. Family and tradition command your loyalty. You respect "
    "authority and handle it well when it comes to you. You are prudent and plan well ahead. Many "
    "of you grow more relaxed and youthful as the years go by.",
    // 10: Aquarius
    "Original and inventive, you are always full of new ideas. You are independent and like to "
    "think for yourselves. Your many friends come from all walks of life. The welfare of society "
    "as a whole matters deeply to you. Your mind is intelligent, logical and scientific, and new "
    "inventions fascinate you. You look to the future rather than the past, and progress excites "
    "you. You are tolerant and accept people as they are. As loyal friends you will help anyone in "
    "need. You are honest and have no time for pretence. Often you are ahead of your time.",
    // 11: Pisces
    "You are compassionate and kind, and you feel the sorrows of others as your own. A rich "
    "fantasy life and a vivid imagination are yours. Your intuition often tells you things that no "
    "one has said. Many of you have a gift for music, poetry, dance or painting. Gentle and "
    "easygoing, you are also selfless and willing to make sacrifices for those you love. You can "
    "fit in anywhere. The mysteries of life and the spiritual world draw you. As good listeners, "
    "you find that people open their hearts to you. In love you are romantic and devoted. You are "
    "forgiving and rarely hold a grudge. With a natural understanding of suffering, many of you "
    "are drawn to healing, nursing or charity work.",
};

const std::string_view kLeoPositiveOpening =
    "You are leaders and have a magnetic personality. Generous and warm hearted, you give freely "
    "of your time, money and affection. Confidence comes naturally, and you carry yourselves with "
    "dignity. Drama, art and entertainment bring out your creative flair. Towards family and "
    "friends you are loyal and protective, and you will defend them without a moment's thought. "
    "Your cheerfulness lifts the spirits of everyone around you. Children love you, and many of "
    "you make wonderful parents and teachers. ";

const std::string_view kLeoPositiveClosing =
    "Anything mean or petty is foreign to your honest and open nature. You are ambitious and aim "
    "high in life. In a crisis others look to you, and you rarely let them down. As natural "
    "organisers you find that people gladly follow your lead. The good things of life delight you, "
    "and you love to entertain in style. Difficulties are faced with courage and a brave heart. "
    "Once an apology is made, you are quick to forgive. You love to be admired, and you work hard "
    "to deserve it. You have flamboyant personality.";

const std::array<std::string_view, 12> kSignNegative = {
    // 0: Aries
    "Patience is not your strong point, and you want everything done at once. Your temper is quick "
    "and can flare up over small matters, though you soon forget. You may act without thinking and "
    "regret it later. You start many projects but lose interest before they are finished. "
    "Selfishness creeps in when you think only of your own wishes. In an argument you may be too "
    "aggressive. Needless risks tempt you.",
    // 1: Taurus
    "You can be very stubborn and refuse to change your mind even when you are wrong. "
    "Possessiveness may extend to people as well as things. Too much fondness for comfort can make "
    "you lazy, and self indulgence may lead you to eat and spend more than is good for you. You "
    "dislike change and may stay in a rut for too long. You may judge others by what they own. "
    "Once angered, you are slow to calm down.",
    // 2: Gemini
    "Restless and easily bored, you may start many things and finish few of them. Your mind "
    "changes from one day to the next. Sometimes you skim the surface of a subject without going "
    "deep. Nerves can make it hard for you to relax. A love of gossip may tempt you to betray a "
    "secret. When it suits you, you may be cunning. You can be two faced and say different things "
    "to different people.",
    // 3: Cancer
    "Your moods change like the tides. A careless word hurts you more than it should. You may "
    "cling too tightly to the people you love, and a grudge can be held for years. Instead of "
    "talking about what is wrong, you may withdraw into your shell and sulk. Overcaution makes you "
    "miss good chances. Self pity comes easily to you. You may live too much in the past.",
    // 4: Leo
    "Pride can make you arrogant, and you may look down on others. You are sometimes vain and love "
    "flattery too much. Domineering at times, you want to run everything and everyone. Admitting a "
    "mistake is hard for you. Some of them demand to be the centre of attention at all times and "
    "sulk when they are not. You may be pompous and patronising. To keep up appearances you may "
    "spend beyond your means. When your pride is wounded, you are easily hurt.",
    // 5: Virgo
    "Your need for neatness may make them fussy and finicky. You worry for even the smallest of "
    "things. You may be introverts and not like too much of socializing. You are generally too "
    "critical about yourselves. Some of them may be untidy. You may be too particular about "
    "things, making others crazy. You may be irritable all the time.",
    // 6: Libra
    "Indecision is your greatest fault, and you may take ages to make up your mind. You avoid "
    "confrontation at any cost, even when a matter needs to be faced. You can be lazy and leave "
    "hard work to others. Vanity can make you spend too much time on your looks. You may be "
    "flirtatious and superficial in your affections. Other people's approval matters too much to "
    "you. Easily influenced, you may agree with whoever spoke last. When things do not go your "
    "way, you sulk.",
    // 7: Scorpio
    "You can be jealous and possessive in love. Secretive by nature, you may not trust even those "
    "closest to you. An injury is never forgotten, and resentment can last for years. Some of them "
    "are vindictive and wait a long time for revenge. Moderation does not come easily: you may be "
    "obsessive and go to extremes. Your knowledge of others can become a tool to control them. "
    "Suspicion may arise without cause, and once you have taken a stand you are hard to reason "
    "with. When you are angry, your sharp tongue can wound deeply. Letting go of the past and "
    "moving on after a loss is hard for you. Friends and partners may find their loyalty tested "
    "time and again.",
    // 8: Sagittarius
    "Tact is not your strength, and you may hurt others with blunt words without meaning to. You "
    "are sometimes careless and forgetful. Settling down is hard for a restless spirit like yours. "
    "Overconfidence may lead you to promise more than you can deliver. Money slips through your "
    "fingers. You may be preachy and lecture others about how they should live. Detail and routine "
    "make you impatient, and commitment of any kind may frighten you off.",
    // 9: Capricorn
    "Pessimism can lead you to expect the worst. Rigid and set in your ways, you find change "
    "difficult. Your reserve may seem cold, and showing your feelings is hard for you. You may be "
    "miserly and count every penny. Work may take so much of you that your family and your health "
    "are neglected. Status matters too much, and so does what others think. You may be stubborn "
    "and unforgiving. Gloom and long silences are not unknown to you.",
    // 10: Aquarius
    "Your detachment may seem cold to those who want warmth from you. You may be unpredictable and "
    "change your plans without warning. You can be contrary and argue for the sake of it. "
    "Rebellion for its own sake appeals to some of them. While claiming to be open minded, you may "
    "be stubborn about your opinions. Aloofness keeps others at a distance. You may be tactless. "
    "Humanity as a whole may receive more of your care than the people closest to you.",
    // 11: Pisces
    "Harsh reality is something you would rather escape from. Oversensitive, you may cry easily. "
    "Your plans can be vague, and decisions are hard to make. Easily led, you may fall under bad "
    "influences. Handling money is not one of your talents. Self pity may make you feel like a "
    "victim. You may be too trusting and get taken advantage of. Lacking willpower, you find it "
    "hard to say no. You may be secretive about your feelings.",
};

} // namespace quillane::modLearnAstrology::paragraphs
