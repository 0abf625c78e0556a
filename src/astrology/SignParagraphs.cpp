// Sign paragraphs: what each sign is like at its best and at its worst.
#include "astrology/AstrologyParagraphs.h"

namespace quillane::modLearnAstrology::paragraphs {

const std::array<std::string_view, 12> kSignPositive = {
    // 0: Aries
    "You are born pioneers and like to be the first in whatever you take up. You are "
    "full of energy and enthusiasm, and you bring life to any gathering. You are brave "
    "and do not shy away from a challenge. You are direct and honest in your dealings "
    "and say what you mean. You are quick to act and quick to decide. You are "
    "independent and prefer to make your own way in the world. You are competitive and "
    "love to win, but you also enjoy the contest for its own sake. You are generous with "
    "your time when a friend is in trouble. You recover quickly from setbacks and are "
    "always ready to start afresh.",
    // 1: Taurus
    "You are patient and dependable, and people know that they can rely on you. You are "
    "practical and have both feet firmly on the ground. You work steadily towards your "
    "goals and rarely give up once you have started. You love comfort, good food and "
    "beautiful things around you. You have a fine sense of touch, taste and colour. You "
    "are loyal and devoted to those you love. You are careful with money and usually "
    "build up security for the future. You are calm and gentle by nature, and it takes a "
    "great deal to upset you. You have a warm and pleasant voice, and many of you have a "
    "gift for music or gardening.",
    // 2: Gemini
    "You are curious about everything and love to learn something new every day. You are "
    "quick witted and have a lively sense of humour. You are excellent talkers and can "
    "make conversation with anyone. You are versatile and can handle several tasks at "
    "once. You adapt easily to new people and new places. You have a youthful spirit "
    "that stays with you all your life. You are clever with words and many of you write "
    "or speak well. You enjoy reading, travelling and meeting friends. You are good at "
    "seeing both sides of a question. You make a room feel brighter simply by walking "
    "into it.",
    // 3: Cancer
    "You are caring and protective towards your family and friends. Your home means a "
    "great deal to you and you like to make it a warm and welcoming place. You are "
    "intuitive and can sense what others feel before they say a word. You are loyal and "
    "will stand by the people you love through thick and thin. You have a remarkable "
    "memory, especially for the past and for family history. You are sympathetic and are "
    "often the one others turn to for comfort. You are cautious and think carefully "
    "before you act. You are imaginative and have a rich inner life. You are tenacious "
    "and do not let go easily of what matters to you. You are thrifty and look after "
    "what you have. You are a wonderful host and love to feed and look after your guests.",
    // 4: Leo
    "", // joined at load time from the two halves below
    // 5: Virgo
    "You are very modest by nature. You are hardworking and take pride in doing a job "
    "well. You have a sharp and analytical mind and notice details that others miss. You "
    "are practical and like to be useful to others. You are neat and well organised, and "
    "you like everything to be in its proper place. You are reliable and keep your "
    "promises. You are interested in health, diet and the care of the body. You are "
    "intelligent and quick to learn new skills. You are helpful and often serve others "
    "without expecting any reward. You are a careful planner and can turn chaos into "
    "order. You are sincere and honest in friendship.",
    // 6: Libra
    "You are charming and graceful, and you make friends wherever you go. You love peace "
    "and harmony and do your best to avoid quarrels. You are fair minded and always try "
    "to see both sides of an argument. You are diplomatic and can smooth over a "
    "difficult situation with a few kind words. You have a fine taste in art, music and "
    "fashion. You are romantic and value a close partnership above almost everything "
    "else. You are sociable and enjoy good company. You are polite and well mannered. "
    "You are good at bringing people together and at finding a balance that suits "
    "everyone.",
    // 7: Scorpio
    "You are determined and once you set your mind on something, nothing can stop you. "
    "You are passionate and feel everything deeply. You are loyal and protective towards "
    "the people you trust. You are perceptive and can see through pretence at once. You "
    "are resourceful and good at finding hidden solutions. You are brave and can face "
    "crises that would break others. You have a magnetic presence that draws people to "
    "you. You are good at research and love to get to the bottom of a mystery. You can "
    "keep a secret. You have great powers of endurance and can rebuild your life from "
    "nothing. You are intensely faithful in love. You are not afraid of hard truths, and "
    "you often have a talent for medicine, psychology or detective work. Your "
    "friendship, once given, is given for life.",
    // 8: Sagittarius
    "You are optimistic and cheerful, and you always look on the bright side of life. "
    "You love freedom and adventure, and you are happiest when you are on the move. You "
    "are honest and straightforward. You are generous and open hearted. You have a good "
    "sense of humour and make people laugh. You are interested in philosophy, religion "
    "and the big questions of life. You love to travel and to learn about other "
    "countries and cultures. You are enthusiastic and your energy is catching. You are "
    "broad minded and tolerant of other points of view. You are good teachers and enjoy "
    "sharing what you know.",
    // 9: Capricorn
    "You are ambitious and have a clear idea of where you want to go. You are "
    "disciplined and work hard. You are patient and climb to the top one careful step at "
    "a time. You are responsible and can be trusted with serious tasks. You are "
    "practical and sensible with money. You have a dry sense of humour. You are steady. "
    "You are loyal to family and tradition. You respect authority and are good at "
    "handling it yourselves. You are prudent and plan well ahead. You often grow more "
    "relaxed and youthful as the years go by.",
    // 10: Aquarius
    "You are original and inventive, and you are always full of new ideas. You are "
    "independent and like to think for yourselves. You are friendly and have many "
    "friends from all walks of life. You are humanitarian and care deeply about the "
    "welfare of society as a whole. You are intelligent and have a logical, scientific "
    "mind. You are progressive and look to the future rather than the past. You are "
    "tolerant and accept people as they are. You are loyal friends and will help anyone "
    "in need. You are honest and do not care for pretence. You are often ahead of your "
    "time.",
    // 11: Pisces
    "You are compassionate and kind, and you feel the sorrows of others as your own. You "
    "are imaginative and have a rich fantasy life. You are intuitive and often know "
    "things without being told. You are artistic and many of you have a gift for music, "
    "poetry, dance or painting. You are gentle and easygoing. You are selfless and "
    "willing to make sacrifices for those you love. You are adaptable and can fit in "
    "anywhere. You are spiritual and drawn to the mysteries of life. You are good "
    "listeners and people open their hearts to you. You are romantic and devoted in "
    "love. You are forgiving and rarely hold a grudge. You have a natural understanding "
    "of suffering, and many of you are drawn to healing, nursing or charity work.",
};

const std::string_view kLeoPositiveOpening =
    "You are leaders and have a magnetic personality. You are generous and warm hearted, and "
    "you give freely of your time, money and affection. You are confident and carry "
    "yourselves with natural dignity. You are creative and have a flair for drama, art and "
    "entertainment. You are loyal and protective towards your family and friends, and you "
    "will defend them without a moment's thought. You are enthusiastic and your cheerfulness "
    "lifts the spirits of everyone around you. You love children and are often wonderful "
    "parents and teachers. ";

const std::string_view kLeoPositiveClosing =
    "You are honest and open and dislike anything mean or petty. You are ambitious and aim "
    "high in life. You are natural organisers and people gladly follow your lead. You are "
    "warm and sunny. You enjoy the good things of life and love to entertain in style. You "
    "are courageous and face difficulties with a brave heart. You are big hearted and quick "
    "to forgive once an apology is made. You love to be admired and you work hard to deserve "
    "it. You have flamboyant personality.";

const std::array<std::string_view, 12> kSignNegative = {
    // 0: Aries
    "You may be impatient and want everything done at once. You are quick tempered and "
    "can flare up over small matters, though you soon forget. You may act without "
    "thinking and regret it later. You start many projects but lose interest before they "
    "are finished. Some of them can be selfish and think only of their own wishes. You "
    "may be too aggressive in an argument. You can be reckless and take needless risks.",
    // 1: Taurus
    "You can be very stubborn and refuse to change your mind even when you are wrong. "
    "You may be possessive about people as well as things. You are sometimes too fond of "
    "comfort and may become lazy. You can be self indulgent, eating and spending more "
    "than is good for you. You dislike change and may stay in a rut for too long. Some "
    "of them can be materialistic and judge others by what they own. Once angered, you "
    "are slow to calm down.",
    // 2: Gemini
    "You can be restless and easily bored. You may start many things and finish few of "
    "them. You may be inconsistent and change your mind from one day to the next. You "
    "sometimes skim the surface of a subject without going deep. You can be nervous and "
    "find it hard to relax. Some of them love to gossip and may not keep a secret. You "
    "may be cunning when it suits you. You can be two faced and say different things to "
    "different people.",
    // 3: Cancer
    "You can be moody, and your feelings change like the tides. You are oversensitive "
    "and easily hurt by a careless word. You may cling too tightly to the people you "
    "love. You can hold on to a grudge for years. Some of them withdraw into their "
    "shells and sulk rather than talk about what is wrong. You may be overcautious and "
    "miss good chances. You can be given to self pity. You may live too much in the past.",
    // 4: Leo
    "You can be proud and arrogant and may look down on others. You are sometimes vain "
    "and love flattery too much. You may be domineering and want to run everything and "
    "everyone. You can be stubborn and find it hard to admit a mistake. Some of them "
    "demand to be the centre of attention at all times and sulk when they are not. You "
    "may be pompous and patronising. You can be extravagant and spend beyond your means "
    "to keep up appearances. You may be easily hurt when your pride is wounded.",
    // 5: Virgo
    "Your need for neatness may make them fussy and finicky. You worry for even the "
    "smallest of things. You may be introverts and not like too much of socializing. You "
    "are generally too critical about yourselves. Some of them may be untidy. You may be "
    "too particular about things, making others crazy. You may be irritable all the time.",
    // 6: Libra
    "You can be indecisive and take ages to make up your mind. You may avoid "
    "confrontation at any cost, even when a matter needs to be faced. You can be lazy "
    "and leave hard work to others. Some of them are vain and spend too much time on "
    "their looks. You may be flirtatious and superficial in your affections. You depend "
    "too much on other people's approval. You can be easily influenced and may agree "
    "with whoever spoke last. You may sulk when things do not go your way.",
    // 7: Scorpio
    "You can be jealous and possessive in love. You are secretive and may not trust even "
    "those closest to you. You may be resentful and never forget an injury. Some of them "
    "can be vindictive and wait a long time for revenge. You may be obsessive and go to "
    "extremes. You can be manipulative and use your knowledge of others to control them. "
    "You may be suspicious without cause. You can be stubborn and hard to reason with. "
    "Your sharp tongue can wound deeply when you are angry. You may find it hard to let "
    "go of the past and to move on after a loss. Some of them test the loyalty of "
    "friends and partners. You can be ruthless to any rival once you decide to win.",
    // 8: Sagittarius
    "You can be tactless and blunt, and you may hurt others without meaning to. You are "
    "sometimes careless and forgetful. You may be restless and find it hard to settle "
    "down. You can be overconfident and promise more than you can deliver. Some of them "
    "are irresponsible with money. You may be preachy and lecture others about how they "
    "should live. You can be impatient with detail and routine. You may dislike any kind "
    "of commitment.",
    // 9: Capricorn
    "You can be pessimistic and expect the worst. You may be rigid and set in your ways. "
    "You can be cold and reserved and find it hard to show your feelings. Some of them "
    "are miserly and count every penny. You may be so devoted to work that you neglect "
    "your family and your health. You can be status conscious and care too much about "
    "what others think. You may be stubborn and unforgiving. You can be gloomy and given "
    "to long silences.",
    // 10: Aquarius
    "You can be detached and seem cold to those who want warmth from you. You may be "
    "unpredictable and change your plans without warning. You can be contrary and argue "
    "for the sake of it. Some of them are rebellious simply to be different. You may be "
    "stubborn about your opinions while claiming to be open minded. You can be aloof and "
    "keep others at a distance. You may be tactless. You can care more for humanity as a "
    "whole than for the people closest to you.",
    // 11: Pisces
    "You can be escapist and run away from harsh reality. You may be oversensitive and "
    "cry easily. You can be indecisive and vague about your plans. Some of them are "
    "easily led and may fall under bad influences. You may be impractical and poor at "
    "handling money. You can be given to self pity and feel like a victim. You may be "
    "too trusting and get taken advantage of. You can lack willpower and find it hard to "
    "say no. You may be secretive about your feelings.",
};

} // namespace quillane::modLearnAstrology::paragraphs
