#include "numerology/NumerologyContent.h"

namespace quillane::modLearnNumerology::content {

namespace {

// Numbers 6, 7 and 8 read the same for both bridge numbers: the paragraphs are
// held once and used by rows 81 to 83 and again by rows 90 to 92.
constexpr char kBridgeSix[] =
    "You need to accept more responsibility and care for the people around you. Be loving, fair "
    "and helpful in your home and your community. When you give support and accept it in return, "
    "the two sides of your nature come closer together and you feel more at peace with yourself. "
    "Avoid being too critical of yourself and of others, and stay gentle.";
constexpr char kBridgeSeven[] =
    "You should look within and spend some quiet time in thought. Study, reflection and trust in "
    "your intuition will show you what you really need. Learn to understand yourself before you "
    "try to change. Your inner search will help you unite the two sides of your nature.";
constexpr char kBridgeEight[] =
    "You need to find a healthy balance between material and spiritual needs. Take charge of your "
    "life, handle money wisely and use your authority fairly. Confidence and good judgement will "
    "help you bring the two sides of your nature into harmony.";

} // namespace

// One paragraph per row, with the number that the row interprets. Rows run
// subject by subject in subject order; see kSubjectRows for the ranges.
constexpr std::array<InterpretationRow, kRowCount> kInterpretationRows = {{
    // Rows 0 to 10: Life Path Number
    {1, "Your main purpose should be attaining independency. You are born with leadership "
        "qualities. The individual with this number has to overcome an environment in which it is "
        "very easy to be dependent, and difficult to be independent."},
    {2, "Your path is one of partnership and cooperation. You are gentle, patient and tactful, and "
        "you work best alongside others rather than in front of them. You have a gift for calming "
        "quarrels and bringing people together. Learn to value your own needs as much as you value "
        "peace, and do not let shyness keep you from speaking up."},
    {3, "Your purpose is to express yourself. You are born with a lively mind, a quick wit and a "
        "talent for words, art or music. People enjoy your company and you lift the mood of any "
        "room. Your lesson is focus: you may scatter your energy over too many projects. Finish "
        "what you start and your creative gifts will bring you joy and success."},
    {4, "You are here to build something solid. You are practical, honest and hard working, and "
        "people count on you because you keep your word. Order and routine give you strength. Be "
        "careful not to become rigid or stubborn when plans change. Step by step, your patience "
        "and discipline will lay firm foundations for you and for your family."},
    {5, "Freedom is the keyword of your life. You are curious and adaptable, and you learn best by "
        "experience. Travel and change keep you alive. Use your freedom wisely and do not run from "
        "commitment."},
    {6, "Your life centers on love, home and responsibility. You are a natural carer who feels "
        "happiest when looking after family and friends. You have a strong sense of fairness and a "
        "feeling for beauty and harmony. Others turn to you for comfort and advice. Do not carry "
        "everyone's burdens as your own, and avoid trying to control the people you love."},
    {7, "You are a seeker of truth. You have a deep, analytical mind and you are drawn to study, "
        "research and the hidden side of life. You need time alone to think and recharge. People "
        "may find you reserved or distant. Learn to trust your intuition and to open up to those "
        "close to you, so that your wisdom can be shared rather than kept to yourself."},
    {8, "Your path leads through the material world. You are ambitious, capable and born with a "
        "talent for business, money and management. You can reach positions of power and "
        "authority. Your lesson is to use that power fairly and to balance work with family and "
        "inner peace. Success comes when you lead with honesty and generosity."},
    {9, "You are here to serve humanity. You are compassionate, generous and broad-minded, with a "
        "sense of the world far beyond your own circle. Many with this number are drawn to "
        "healing, teaching or the arts. Your lesson is to let go of the past and of personal "
        "grudges. Give freely without expecting a reward and your life will be rich in meaning."},
    {11, "Eleven is a master number and your path is one of inspiration and spiritual insight. You "
         "are highly intuitive and sensitive, and you often know things without being told. You "
         "can inspire others simply by being who you are, and many people look to you as a guide. "
         "The same sensitivity can bring nervous tension, self-doubt and sudden shifts of mood. "
         "Trust your inner voice, rest when you need to, and use your gifts to lift up the people "
         "around you rather than to carry their worries."},
    {22, "Twenty-two is the master builder. You combine the vision of the dreamer with the "
         "practical skill of the worker, and you are able to turn big ideas into real and lasting "
         "results. You may feel the pull to do something that benefits many people. Such great "
         "potential brings great pressure, so keep your feet on the ground and do not let fear of "
         "failure hold you back."},
    // Rows 11 to 21: Destiny / Expression Number
    {1, "This tells you are a leader. You are talented, skilled and posses cool administrative "
        "capabilities. Problem solving, originality and creativity are your traits. You know how "
        "to get things going and make things happen. The negative trait of this number includes "
        "one becoming egotistic and developing a self-centered approach to life. This number has "
        "an aggressive nature and the mantra is to maintain calm."},
    {2, "This shows that you are a peacemaker. You are diplomatic, cooperative and sensitive to "
        "the feelings of others. You work well in partnership and you have the patience to see the "
        "small details that others miss. You are a good listener and a loyal friend. The negative "
        "trait of this number includes becoming too dependent on others and being easily hurt. "
        "Build your confidence and speak up for yourself."},
    {3, "This tells you are gifted in self-expression. You are creative, charming and full of "
        "optimism. Writing, speaking, acting and the arts come naturally to you, and you can make "
        "people laugh and feel at ease. You have a bright imagination and a talent for inspiring "
        "others. The negative trait of this number is a tendency to scatter your energy and to be "
        "careless with money and time. Learn to focus and finish your work."},
    {4, "This says you are a builder and an organizer. You are reliable, methodical and honest, "
        "and you take your duties seriously. You are at your best when you have a clear plan and "
        "solid goals. Others trust you to get the job done properly. The negative trait of this "
        "number includes being stubborn, narrow-minded and too strict with yourself and others. "
        "Allow room for change and for some fun."},
    {5, "This tells you are a free spirit. You are adventurous, versatile and quick to learn. You "
        "love travel, variety and meeting new people, and you adapt easily to any situation. You "
        "are a natural salesperson and a clever communicator. The negative trait of this number "
        "includes restlessness, impatience and a dislike of commitment. Avoid overindulgence and "
        "learn to see things through."},
    {6, "This shows that you are a caring and responsible person. You are loyal, kind and "
        "protective of your family and community. You have a strong sense of justice and an eye "
        "for beauty. Teaching, healing and counseling suit you well. People feel safe with you. "
        "The negative trait of this number includes interfering in the lives of others and "
        "worrying too much. Care without trying to control."},
    {7, "This tells you are a thinker and a seeker. You have a sharp, analytical mind and a deep "
        "interest in the mysteries of life. Research, science and spiritual study suit you well. "
        "You work best alone and in quiet surroundings, and your insight grows with the years."},
    {8, "This shows that you have the power to achieve material success. You are ambitious, "
        "confident and a capable manager of money and people. You think big and you have the drive "
        "to turn plans into profit. Business, finance and positions of authority suit you. The "
        "negative trait of this number includes becoming greedy, domineering or too focused on "
        "status. Remember that power is best used for the good of all."},
    {9, "This tells you are a humanitarian. You are generous, compassionate and idealistic, and "
        "you want to make the world a better place. You are tolerant of others and you have a wide "
        "view of life. Art, medicine, teaching and charity work may attract you. The negative "
        "trait of this number includes moodiness and a tendency to hold on to the past. Learn to "
        "forgive and to let go."},
    {11,
     "This shows that you carry the master number eleven. You are an inspired idealist with strong "
     "intuition and a gift for reaching the hearts of people. You may become a teacher, a healer, "
     "an artist or a spiritual guide. You are kind and honest. You often sense things long before "
     "others do, and your ideas can light the way for many. Your nerves are delicate, so you need "
     "calm surroundings and time to rest. Keep both feet on the ground and turn your visions into "
     "practical action, and you will be a source of light for others."},
    {22,
     "This tells you carry the master number twenty-two, the number of the master builder. You "
     "have the vision to see great plans and the practical skill to carry them out. You can lead "
     "large projects, organizations or movements that serve many people. You are disciplined, "
     "capable and confident. Use your strength to serve others and your work will outlast you."},
    // Rows 22 to 32: Soul's Urge/ Heart's Desire Number
    {1, "You achieve a sense of gratification when you succeed in any type of competition. You "
        "need to have the sense that you are a winner at doing what you do. You are intelligent "
        "and witty. Winning makes you feel accepted and appreciated. You have a good insight about "
        "others abilities. You are responsible and a pioneer in your field."},
    {2, "You long for love, harmony and companionship. You feel happiest when you are part of a "
        "close partnership or a loving family. You are gentle and sensitive, and you quietly "
        "notice the needs of others. Peace matters far more to you than any praise. Do not hide "
        "your own wishes only to avoid a quarrel."},
    {3, "Your heart wants to create and to share joy. You feel fulfilled when you can express "
        "yourself through words, art, music or play. You love beauty, friendship and lively "
        "company. Your optimism is catching and you enjoy making others smile. You need an "
        "audience for your gifts. Give your ideas a form so they do not remain dreams."},
    {4, "You long for security, order and a firm base in life. You feel content when your home, "
        "your work and your money are well arranged. You value honesty and loyalty above all. You "
        "are willing to work hard and patiently for what you want. You like clear rules and you "
        "keep your promises. Make time for rest and do not let worry rule you."},
    {5, "Your heart craves freedom and adventure. You dream of travel, new experiences and a life "
        "without routine. You are curious and love to learn about people and places. You feel "
        "trapped when you are tied down for too long. You are lively and quick witted. Seek "
        "variety in healthy ways and your restless spirit will find satisfaction."},
    {6, "You long to love and be loved. Your deepest wish is for a warm home and a happy family, "
        "and you feel fulfilled when you care for others. You are loyal, kind and responsible. You "
        "are drawn to beauty and harmony in your surroundings. People come to you for comfort. "
        "Remember that you also deserve care, and accept help when it is offered."},
    {7,
     "Your soul seeks wisdom and understanding. You want to know the truth behind things and you "
     "are happiest in quiet study and reflection. You value privacy and you choose your friends "
     "with care. You have a rich inner life and a strong intuition. Nature and solitude restore "
     "you. Share your discoveries and do not shut yourself away from those who love you."},
    {8,
     "You desire success, recognition and the freedom that money brings. You want to be in charge "
     "and to see your efforts rewarded. You have strong ambition and good judgement in practical "
     "matters. You admire achievement and you are ready to work for it. You enjoy quality and "
     "comfort. Keep a fair balance between gain and kindness and your success will last."},
    {9,
     "Your heart longs to help the world. You feel fulfilled when you give, teach or heal, and you "
     "care deeply about people you have never met. You are generous and forgiving and have a wide, "
     "tolerant view of life. You are moved by art and beauty. Your dreams are large. Take care "
     "that your ideals do not leave you disappointed in others who cannot match them."},
    {11, "Your inner wish is for spiritual growth and for inspiring others. You are deeply "
         "intuitive and you feel the moods of people around you. You dream of a higher purpose and "
         "you are drawn to faith, art and healing. You have a fine sensitivity and an idealistic "
         "heart. Protect your energy, because harsh places drain you. Trust your visions and share "
         "your light with patience. Quiet hours in nature will renew your spirits."},
    {22,
     "You long to build something that will last beyond you. Your heart wants to turn great ideals "
     "into real works that serve many people. You have both vision and common sense. You are "
     "willing to take on heavy responsibility for a worthy cause. You feel most alive when your "
     "plans take shape. Keep your goals in reach and do not let their size frighten you."},
    // Rows 33 to 43: Inner Dreams / Personality Number
    {1,
     "Great feeling of importance is what you love. You want to be known for your courage, daring, "
     "and original ideas. You are a pioneer in your field. People may get a first impression that "
     "you are very aggressive and sure of yourself. You are confident and won't be pushed around. "
     "You are dynamic and in control. You feel comfortable with your personality."},
    {2, "You appear gentle, friendly and approachable. People see you as modest and easy to talk "
        "to, and they often trust you with their secrets. You dress and act with quiet good taste. "
        "You prefer to stay in the background and support others. You are a good listener. Do not "
        "let your soft manner make people think you can be pushed aside."},
    {3, "You come across as cheerful, witty and charming. People are drawn to your warmth and to "
        "your sense of humor. You enjoy talking, joking and being in company, and you brighten any "
        "gathering. You like to look good and to dress with flair. Others see you as fun to be "
        "with. Take care not to seem shallow; show the depth behind your smile."},
    {4, "You give the impression of being steady, sensible and reliable. People see you as someone "
        "who works hard and keeps promises. You are practical and tidy, and you prefer simple, "
        "useful things to flashy ones. Others come to you when they need a firm hand. You are "
        "careful with money. Let people see your warmth, so they do not think you too serious."},
    {5, "You appear lively, attractive and full of energy. People see you as adventurous and "
        "exciting, and they enjoy your stories and your sense of fun. You are quick, clever and "
        "persuasive, and you adapt to any company. You like to keep up with new fashions. Others "
        "may wonder if you will stay. Show that you can be counted on when it matters."},
    {6, "You come across as warm, caring and trustworthy. People see you as a natural parent or "
        "protector and feel safe in your company. You are kind, fair and ready to help. You make "
        "your home truly welcoming and you care about how things look. Be careful not to carry too "
        "many of the troubles of others."},
    {7, "You appear quiet, dignified and a little mysterious. People see you as intelligent and "
        "thoughtful, someone who keeps a certain distance. You choose your words with care and you "
        "do not share your private life easily. Others respect your knowledge and your calm. You "
        "like simple, refined things. Let a few people closer so they can know the real you."},
    {8,
     "You give the impression of strength, confidence and authority. People see you as successful "
     "and in control, even before they know you well. You carry yourself with dignity and you like "
     "quality in dress and surroundings. Others expect you to lead. You are efficient and "
     "decisive. Soften your manner at times, so that you do not seem hard or proud."},
    {9, "You come across as kind, generous and open-minded. People see you as someone with a big "
        "heart and wide interests, and they are drawn to your warmth. You carry yourself with "
        "grace and often seem older than your years. Others look up to you and they often ask for "
        "your help or your view. You are tolerant and forgiving. Take care to protect your privacy "
        "and your energy from those who ask too much."},
    {11, "You appear sensitive, inspiring and a little unusual. People see you as gentle yet "
         "strong in your ideals, and they may sense that you understand more than you say. You "
         "have a fine, refined manner. Others seek your advice. You are honest and idealistic. "
         "Look after your nerves, and do not let the high hopes of others weigh you down."},
    {22, "You give the impression of great capability and quiet power. People see you as a "
         "practical visionary who can make big things happen. You are calm, organized and trusted "
         "by those around you. Others rely on your judgement. You are confident but modest. Let "
         "people see your gentle side too, so they feel they can reach you easily."},
    // Rows 44 to 74: Birthday Number
    {1, "People associated with this prefer their uniqueness. You are aggressive in nature. You "
        "are enormously honest and do your best to learn negotiation skills. So be open, you have "
        "a good future ahead. You have the qualities of a good boss."},
    {2, "People born on this day are gentle and sensitive. You have a natural feeling for the "
        "moods of others and you know how to bring people together. You work best in partnership "
        "and you are a patient, loyal friend. You notice small details that others overlook. Try "
        "not to take criticism too much to heart, and believe in your own worth."},
    {3, "People born on this day have a lively imagination and a gift for words. You are sociable, "
        "cheerful and creative, and you can express your feelings through writing, speaking or "
        "art. You enjoy company and you make friends easily. Try to focus your talents on a few "
        "goals instead of many, and you will achieve a great deal."},
    {4, "People born on this day are practical and dependable. You like order, planning and steady "
        "progress, and you have the patience to finish what others abandon. You are honest and "
        "loyal, and people trust you with important work. You have good skills with your hands. "
        "Avoid becoming too rigid, and allow yourself some time to relax and enjoy life."},
    {5, "People born on this day love freedom and variety. You are quick, clever and curious, and "
        "you adapt easily to new places and people. You have a talent for communication and "
        "selling ideas. Routine bores you and you need change to feel alive. Learn to stick with a "
        "task long enough to see it through, and your many talents will pay off."},
    {6, "People born on this day are caring and responsible. Home and family mean a great deal to "
        "you, and you are always ready to help a friend in need. You have a good eye for beauty, "
        "color and design. You are loyal and generous. Try not to worry about others too much, and "
        "remember that they must learn their own lessons."},
    {7, "People born on this day have a sharp mind and a deep inner life. You like to study, "
        "question and understand the reason behind things. You are intuitive and often reserved, "
        "and you need time alone to think. You may be drawn to science, research or spiritual "
        "study. Try to share your thoughts with those close to you, so they do not feel shut out."},
    {8, "People born on this day have a strong talent for business and management. You are "
        "ambitious, efficient and able to handle money and authority well. You think in big terms "
        "and you are willing to work hard for success. You are a good judge of value. Keep a "
        "balance between work and private life, and use your power with fairness."},
    {9, "People born on this day are generous and broad-minded. You care about people and causes "
        "beyond your own circle, and you have a strong sense of idealism. You may have artistic "
        "talent and a gift for inspiring others. You are forgiving and tolerant. Learn to let go "
        "of the past, and do not expect others always to share your high ideals."},
    {10,
     "People associated with this day are independent and ambitious. You have strong leadership "
     "qualities and plenty of new ideas. You like to start projects and you have the courage to "
     "follow your own path. You are determined and able to recover quickly from setbacks. Be open "
     "to the advice of others, and avoid becoming stubborn or too proud to ask for help."},
    {11, "People born on this day are intuitive and idealistic. You often sense what others feel "
         "before they say it, and you have a gift for inspiring people. You may be drawn to "
         "teaching, healing or the arts. Your nerves are sensitive and you can be easily upset by "
         "harsh words. Find quiet time to rest and trust the inner voice that guides you."},
    {12, "People born on this day have a bright and creative mind. You are good with words, quick "
         "to laugh and charming in company. You have a fine imagination and you enjoy sharing "
         "ideas. You may have a talent for writing, acting or design. Your moods can change "
         "quickly, so try to stay steady, and use your gifts to bring joy to others."},
    {13, "People born on this day are hard working and well organized. You can turn ideas into "
         "practical results and you are not afraid of effort. You have a good sense of form and "
         "may have artistic or technical skill. You value a steady home life. Avoid becoming "
         "stubborn or too strict, and remember that patience brings the rewards you seek."},
    {14,
     "People born on this day love change and new experiences. You are versatile, quick thinking "
     "and good at dealing with people. You may enjoy travel, writing or any work with variety. You "
     "learn fast from your experiences. You have a taste for risk, so take care with money and "
     "with your health, and try to balance your need for freedom with some order."},
    {15, "People born on this day are warm, generous and loving. You have a magnetic charm that "
         "draws people to you, and you take your duties to family and friends seriously. You may "
         "have artistic gifts and a talent for teaching. You learn quickly. Try not to be too "
         "possessive of the people you love, and let them find their own way."},
    {16, "People born on this day are thoughtful and intuitive. You have a questioning mind and "
         "you look for deeper meaning in life. You may write well and enjoy study. You value your "
         "independence. Your life may bring sudden changes that teach you important lessons. Keep "
         "an open heart and do not hide your feelings behind a cool surface."},
    {17, "People born on this day have a strong mind for business and finance. You are "
         "independent, ambitious and able to plan for the long term. You have good judgement and "
         "you can take charge in difficult times. You may be drawn to research or management. Be "
         "careful not to seem cold, and let others see the kindness behind your drive."},
    {18, "People born on this day are natural leaders with a wide view of the world. You are "
         "ambitious, capable and concerned with the welfare of others. You can organize people and "
         "projects well. You have a strong sense of justice. Avoid being too critical or "
         "impatient, and learn to look after your own needs while you help others."},
    {19, "People born on this day are independent and determined. You like to do things your own "
         "way and you are able to stand on your own feet. You have drive, ambition and plenty of "
         "ideas. You can recover from hard times with strength. Learn to accept help and advice "
         "from others, and do not let pride keep you from the support you deserve."},
    {20, "People born on this day are sensitive and cooperative. You have a warm heart and a "
         "talent for diplomacy, and you work well as part of a team. You are intuitive and you "
         "notice what others feel. You enjoy music, beauty and quiet company. Try not to let your "
         "feelings be hurt too easily, and stand up for yourself when it is needed."},
    {21, "People born on this day are social, creative and expressive. You enjoy company and you "
         "have a talent for words, writing or performance. You are friendly, optimistic and good "
         "at bringing people together. You have a lively imagination. Try to develop discipline, "
         "so your many ideas grow into finished work that others can enjoy."},
    {22, "People born on this day carry the master number twenty-two. You are a practical "
         "visionary, able to see large plans and to carry them out with patience and skill. You "
         "are capable of leading big projects and of building things that serve many people. You "
         "combine intuition with common sense, and others trust your judgement in serious matters. "
         "You are patient, loyal, hard working and utterly reliable in all the work you undertake, "
         "and you are willing to take on great responsibility. The weight of your own ambition can "
         "make you tense, so learn to relax and to share the load with others."},
    {23, "People born on this day are quick, versatile and full of life. You have a gift for "
         "communication and you get on well with all kinds of people. You love freedom, travel and "
         "new experiences. You learn from life more than from books. You are adaptable and clever. "
         "Avoid restlessness and try to finish the projects that you start with such enthusiasm."},
    {24, "People born on this day are loyal, responsible and devoted to home and family. You are a "
         "dependable friend and a caring partner. You have a good sense of balance and fairness, "
         "and you may have artistic or practical gifts. You work steadily. Try not to carry too "
         "many burdens alone, and allow others to take care of you as well."},
    {25, "People born on this day have an analytical and intuitive mind. You like to observe and "
         "to understand before you act. You are a perfectionist who can spot what others overlook. "
         "You may be drawn to study, research or spiritual matters. You value your privacy. Trust "
         "your first impressions and do not be too hard on yourself when things are imperfect."},
    {26, "People born on this day have good business sense and a strong concern for family. You "
         "are practical, ambitious and capable of managing people and money. You like to see your "
         "efforts produce results. You are generous with those you love. Take care not to become "
         "too controlling, and let others share in the decisions that affect them."},
    {27, "People born on this day are compassionate and wise beyond their years. You have broad "
         "interests and a talent for teaching and leading others. You are drawn to causes that "
         "help people. You may have artistic or healing gifts. You are tolerant and understanding. "
         "Try to balance your ideals with practical life, and be patient with those who see things "
         "differently."},
    {28, "People born on this day are independent and ambitious, yet you also value cooperation. "
         "You have strong leadership qualities and you are good at starting new projects. You are "
         "determined and you have a good sense of fairness. You like to be your own boss. Learn to "
         "listen to others and to finish what you begin, and success will come to you."},
    {29, "People born on this day are intuitive, sensitive and inspired. You have a strong "
         "imagination and a deep feeling for others. You may be drawn to spiritual study, art or "
         "counseling. You can inspire and uplift people around you. Your emotions run high, so try "
         "to keep your balance, and avoid swinging between great hope and sudden doubt."},
    {30,
     "People born on this day are creative, friendly and expressive. You have a talent for words "
     "and a good imagination, and you enjoy being with people. You are cheerful and often the "
     "center of attention. You may have artistic or writing skills. Try to stay focused on your "
     "goals, and use your charm to open doors rather than to escape hard work."},
    {31, "People born on this day are practical, loyal and well organized. You have a good memory "
         "and steady determination. You like to build for the future and you work hard for "
         "security. You also enjoy travel and new ideas. You have a fine sense of order. Try not "
         "to be too fixed in your ways, and remember to make time for friends and fun."},
    // Rows 75 to 83: Life Path / Expression Bridge Number
    {0, "You will probably experience a great deal of peace in your life. This is a very lucky "
        "combination and generally indicates progress in these areas."},
    {1, "You need to become more independent. Trust your own judgement and stand up for your "
        "ideas. Do not wait for others to show you the way. When you develop your confidence, the "
        "gap between your path and your talents will close."},
    {2, "You should learn to be more patient and cooperative. Listen to the views of others and be "
        "sensitive to their feelings. Teamwork and diplomacy will help you combine what you are "
        "with what you must become."},
    {3, "You need to express yourself more freely. Share your ideas, your feelings and your "
        "creative gifts with others. Be more optimistic and enjoy life. Joy and communication will "
        "help you close the gap between your path and your talents."},
    {4, "You should bring more order and discipline into your life. Make plans, set clear goals "
        "and work steadily towards them. Patience and hard work will help you bring your natural "
        "abilities into line with your path."},
    {5, "You need to welcome change and new experiences. Be more flexible and open to new ideas, "
        "and do not cling to old habits. A little adventure will help you bring your talents and "
        "your life path together."},
    {6, kBridgeSix},
    {7, kBridgeSeven},
    {8, kBridgeEight},
    // Rows 84 to 92: Heart Desire / Personality Bridge Number
    {0, "This is very lucky number and you will make people feel comfortable around you. Sometimes "
        "your life may go haywire if your Life Path number or your Expression numbers are also "
        "identical to your Heart's Desire number and your Personality number. Don't worry it is "
        "not constant."},
    {1, "You should show your true self with more confidence. Say what you think and take the lead "
        "now and then, rather than waiting for others. When people see the strength you feel "
        "inside, they will understand you better and your relationships will grow."},
    {2, "You need to be more gentle and tactful with others. Listen closely and pay attention to "
        "their feelings. A softer manner will let people see the caring person you are inside, and "
        "will bring more harmony into your friendships and your home."},
    {3, "You should let others see your joy and your creativity. Talk more openly about your "
        "feelings and do not hide your sense of fun. When you express yourself freely, people will "
        "see the real you and feel closer to you."},
    {4, "You need to show others that you can be relied on. Be more organized and keep your "
        "promises. When your actions are steady and practical, people will trust you and see the "
        "solid person you truly are."},
    {5, "You should allow yourself more freedom and variety. Do not be afraid to try new things "
        "and to show your adventurous side. When you relax and let your curiosity show, people "
        "will enjoy your company and understand your true nature."},
    {6, kBridgeSix},
    {7, kBridgeSeven},
    {8, kBridgeEight},
    // Rows 93 to 101: Balance Number
    {1, "You should make use of your keen sense of awareness. Do not hesitate to ask others for "
        "help in need. React confidently and capably. You need our strength to win the war but "
        "others' advice may also be helpful. Do not be aggressive or stubborn. You need to have "
        "the right balance of courage and creativity."},
    {2, "In difficult times you should rely on tact and diplomacy. Do not retreat from the problem "
        "or let your feelings take over. Listen carefully to both sides and look for a peaceful "
        "solution. Your gentle nature can calm others and help you find your way through the "
        "trouble. Ask a trusted friend for an honest view before you make a choice."},
    {3, "When trouble comes, use your gift for words and your sense of humor. Talk about your "
        "worries with friends instead of hiding them. Do not scatter your energy or pretend that "
        "nothing is wrong. A cheerful and creative approach will help you rise above the problem."},
    {4, "In hard times you need to stay calm and practical. Make a plan and deal with the problem "
        "one step at a time. Do not become stubborn or closed to new ideas. Your patience and "
        "discipline will carry you through, and steady effort will restore your balance."},
    {5, "When life becomes difficult, try to stay flexible. Look at the situation from a new angle "
        "and be willing to change your approach. Do not escape into restless activity or "
        "overindulgence. Your quick mind and love of freedom can help you find a way out."},
    {6, "In times of trouble you should turn to the people who love you. Accept their help and "
        "support, and offer your own in return. Do not take on every burden yourself. Your caring "
        "and responsible nature will help restore harmony to your home and your heart."},
    {7, "When problems arise, take some quiet time to think things through. Look for the deeper "
        "meaning of what is happening. Do not shut yourself away from others for too long. Your "
        "wisdom and intuition will guide you, and calm reflection will bring you peace."},
    {8, "In hard times you should use your strength and good judgement. Take control of the "
        "situation and make firm decisions. Do not try to solve every problem with money alone. "
        "Your confidence will help you overcome the difficulty."},
    {9, "When things go wrong, try to look at the bigger picture. Show compassion to yourself and "
        "to others involved. Do not dwell on the past or hold grudges. Your generosity and broad "
        "view of life will help you let go of the trouble and move on with grace."},
    // Rows 102 to 112: Maturity / Realization Number
    {1, "As you grow older, will love being independent. You will fight for success. The feeling "
        "of being shown importance will rise in you. You wish to be complimented and rewarded for "
        "your success. This will automatically increase your confidence level."},
    {2, "As you grow older, you will value peace and close relationships more and more. You will "
        "become more patient and diplomatic. Partnership and cooperation will bring you "
        "fulfillment. Your sensitivity will help you support others in your later years."},
    {3,
     "In your later years, your creative side will come to life. You will enjoy expressing "
     "yourself through words, art or social life. Your optimism will grow and you will make new "
     "friends easily. Take the time to develop the talents you set aside when you were younger."},
    {4, "As you mature, you will seek order and security. You will want to build something solid "
        "for yourself and your family. Your hard work and discipline will be rewarded. You will "
        "become known as someone reliable and practical, and your later years will rest on firm "
        "foundations."},
    {5, "As you grow older, you will long for freedom and new experiences. Travel and adventure "
        "will call to you. You will stay young in spirit. Use your new freedom wisely, to learn "
        "and to grow."},
    {6, "In your later years, family and home will become the center of your life. You will find "
        "great joy in caring for others and in making your surroundings beautiful. You will take "
        "on responsibility in your community. Your love and service will be well rewarded."},
    {7, "As you mature, you will turn inward and seek deeper understanding. Study, reflection and "
        "spiritual interests will fill your later years. You will gain wisdom and insight. Time "
        "alone will become precious to you, and you will be respected for your knowledge."},
    {8, "As you grow older, you will achieve material success and recognition. Your ability to "
        "manage money and people will grow. You may reach a position of authority. Use your power "
        "wisely and generously, and your later years will be comfortable and secure."},
    {9, "In your later years, you will feel a strong wish to serve others and the world. You will "
        "become more compassionate and tolerant. You may be drawn to charity, teaching or the "
        "arts. Your generosity will bring you deep satisfaction and the love of many people."},
    {11,
     "As you mature, your intuition and spiritual awareness will grow stronger. You may become a "
     "source of inspiration and guidance for others. Your later years can bring a sense of mission "
     "and deep insight. You will be drawn to teaching, healing or the arts, and people will seek "
     "you out for comfort and advice in their difficult times. Take care of your nerves and keep "
     "your feet on the ground, and your wisdom will light the way for many people."},
    {22, "In your later years, you may be able to achieve great things on a large scale. Your "
         "vision and practical skill will come together. You may build something that benefits "
         "many people and lasts long after you. Keep your ambitions realistic and take care of "
         "your health, and your life's work will be remembered."},
    // Rows 113 to 123: Pinnacle Number
    {1, "This signifies the period when you will be aiming for independence. You want your "
        "individuality to be accepted and your ideas and achievements to be recognized. You have "
        "to rely on only your strength, as you may not receive any support from family. "
        "Responsibilities will be fulfilled if you're allowed to lead. You need to put in effort "
        "to achieve success and rewards."},
    {2, "This signifies a period of cooperation and partnership. You will learn patience and "
        "diplomacy, and you may find success by working closely with others rather than alone. "
        "Close relationships and marriage are often highlighted. Your sensitivity will increase, "
        "so guard against being easily hurt. Small details matter now. Progress may be slow but it "
        "will be steady, and the support of others will carry you forward."},
    {3, "This signifies a period of creativity and self-expression. Your social life will flourish "
        "and you will enjoy friends, travel and entertainment. It is a good time for writing, "
        "speaking and the arts. Your optimism will attract opportunities. Be careful not to "
        "scatter your energy or waste your money on pleasures. Use this cheerful period to develop "
        "your talents and to share them with others."},
    {4, "This signifies a period of hard work and building. You will be asked to lay solid "
        "foundations for your future, in your work, your home and your finances. Avoid short cuts, "
        "however tempting they are. The effort you make during this period will bring security and "
        "lasting rewards later on."},
    {5, "This signifies a period of change, freedom and movement. You may travel, change jobs or "
        "move home, and you will meet many new people. Life will feel exciting and unpredictable. "
        "It is a time to learn from experience and to adapt. Avoid rash decisions and "
        "overindulgence. Embrace the changes with an open mind, and this period will widen your "
        "horizons and free you from old limits."},
    {6, "This signifies a period of responsibility, love and family. Marriage, children and home "
        "will be at the center of your life. You will be asked to care for others and to serve "
        "your community. It is a good time for settling down and for creating beauty around you. "
        "You may carry heavy duties. Accept them with a loving heart, but do not forget your own "
        "needs along the way."},
    {7, "This signifies a period of reflection, study and inner growth. You will feel the need to "
        "understand yourself and the deeper meaning of life. It is a good time for education, "
        "research and spiritual interests. You may spend more time alone. Material gains may come "
        "slowly now. Trust your intuition, and the wisdom you gain in this quiet period will serve "
        "you for the rest of your life."},
    {8, "This signifies a period of achievement in the material world. You will have the chance to "
        "gain money, power and recognition through your own efforts. Business and management will "
        "bring good results. You will need good judgement and confidence. This is a time to think "
        "big and to take charge. Use your power with fairness and keep your values, and the "
        "success you build will be lasting."},
    {9, "This signifies a period of completion and service to others. You will become more "
        "compassionate and more aware of the needs of the world. Some parts of your life may come "
        "to an end to make room for new ones. It is a good time for charity, the arts and healing "
        "work. Learn to let go of what is finished. Your generosity will be returned to you in "
        "ways you do not expect."},
    {11, "This signifies a period of inspiration and spiritual awakening. Your intuition will be "
         "very strong and you may feel called to a higher purpose. You can become a guide, teacher "
         "or healer for others, and people will look to you for insight. It is a time of idealism "
         "and vision, and you may receive recognition or fame. Your nerves will be tested and you "
         "may feel great pressure. Keep a calm mind, look after your health, and put your ideals "
         "into practical form so that others can benefit from them."},
    {22, "This signifies a period of great achievement on a large scale. You will have the chance "
         "to turn your biggest dreams into reality and to build something that serves many people. "
         "Your vision and practical skill work together now, and others will trust you with heavy "
         "responsibility. It is a time for large projects, public work and lasting results. The "
         "demands on you will be great and the pressure can be intense. Stay disciplined, keep "
         "your aims realistic and rely on those you trust. What you build during this pinnacle may "
         "stand long after you, so build it with care and integrity."},
    // Rows 124 to 132: Challenge Number
    {0, "Steady growth is seen. There will be no serious problems. You may discover your inner "
        "self. You are expected to focus on your life goals. This is known as the challenge of "
        "choice. You need to have faith in yourself to face the problems and solve them. You are "
        "being given an opportunity to do something for others."},
    {1,
     "Your challenge is to develop independence and self-confidence. You may feel dominated by "
     "others or afraid to stand up for yourself. At times you may swing the other way and become "
     "too forceful. You need to learn to trust your own judgement and act on it. Do not let the "
     "opinions of others decide your path. Balance your strength with respect for others."},
    {2,
     "Your challenge is oversensitivity. You may be easily hurt by small remarks and fear the "
     "judgement of others. You may lose yourself in the needs of people around you. Learn to take "
     "criticism calmly and to stand firm in your own views. Develop patience and tact without "
     "becoming timid. Cooperation is good, but you must not give up your own identity for peace."},
    {3,
     "Your challenge lies in self-expression. You may hide your feelings or feel shy about sharing "
     "your ideas, or you may scatter your energy in idle talk. Learn to express yourself honestly "
     "and with purpose. Develop your creative gifts with discipline. Do not fear criticism of your "
     "work. When you find your true voice, your confidence will grow and life will feel lighter."},
    {4,
     "Your challenge is to develop order and discipline. You may find routine work dull, or you "
     "may become too rigid and set in your ways. Learn to be patient and to finish what you begin. "
     "Do not look for short cuts. Accept limits as part of building something solid. Balance hard "
     "work with rest, and your efforts will give you security and pride in your achievements."},
    {5, "Your challenge is to handle freedom wisely. You may feel restless and want to escape from "
        "any kind of commitment, or you may fear change and cling to the familiar. Learn to "
        "welcome new experiences without running from responsibility. Avoid overindulgence in "
        "food, drink or pleasure. Find healthy ways to bring variety into your life, and freedom "
        "will become a gift rather than a trap."},
    {6, "Your challenge involves responsibility and perfectionism. You may set high standards for "
        "yourself and others, and feel let down when they are not met. You may try to control the "
        "people you love or carry their problems as your own. Learn to accept others as they are. "
        "Give care without demanding gratitude. When you let go of the need to be right, harmony "
        "will return to your relationships."},
    {7, "Your challenge is to overcome isolation and doubt. You may feel different from others and "
        "hide behind a wall of reserve. You may lack faith in yourself or in life. Learn to open "
        "up and to share your thoughts with people you trust. Study and reflection will help you, "
        "but do not cut yourself off from the world. Develop your spiritual side and trust your "
        "inner voice."},
    {8, "Your challenge concerns money, power and material success. You may be too focused on "
        "wealth and status, or you may fear success and avoid taking control of your affairs. "
        "Learn to handle money wisely and to use authority with fairness. Do not judge yourself or "
        "others by what they own. You have the talent to manage and lead well, but you must keep "
        "your values in sight. When you balance the material and the spiritual, you will find that "
        "real success comes from the way you treat people along the way."},
    // Rows 133 to 143: Life Path Period Number
    {1, "It's a time of progress. You must intensify the process of achieving your goals and apply "
        "your strengths and abilities to your job. The period will also test you skills, so you "
        "are expected to be an independent individual. Don't rely much on others. Don't get "
        "diverted form your life's vision. You must struggle hard to overcome the obstacles."},
    {2, "It's a time of patience and cooperation. Progress may come slowly, and you will need to "
        "work with others rather than alone. Relationships and partnerships are important in this "
        "period. Be tactful and gentle, and pay attention to details. Do not push too hard; let "
        "things grow in their own time."},
    {3, "It's a time of creativity and social growth. You will make friends easily and enjoy life. "
        "Your talents for writing, speaking and the arts will develop. It is a good period to "
        "express yourself. Be careful not to waste your energy on too many pursuits, and use your "
        "gifts with purpose."},
    {4, "It's a time of hard work and steady effort. You will be asked to build foundations for "
        "your future. Discipline, order and patience are needed. Progress may feel slow, but what "
        "you build now will last for years."},
    {5, "It's a time of change and freedom. You may travel, move or try many different kinds of "
        "work. Life will be busy and full of new experiences. It is a good period to learn and to "
        "explore. Avoid hasty decisions and do not scatter your energy. Keep some stability while "
        "you enjoy your freedom."},
    {6, "It's a time of love and responsibility. Home, family and community will take much of your "
        "attention. You may marry, raise children or care for others. This period brings warmth "
        "and close ties. Accept your duties with a willing heart, but make sure you also take care "
        "of yourself."},
    {7, "It's a time of study and reflection. You will look inward and seek a deeper understanding "
        "of life. Education, research and spiritual interests will be rewarding. You may prefer "
        "quiet places and spend time alone. Trust your intuition and be patient, because the "
        "answers you seek will come."},
    {8, "It's a time of ambition and material progress. You will have chances to gain money, "
        "position and recognition. Business and management will be favored. You need confidence "
        "and good judgement. Work hard and be fair in your dealings. Keep a balance between "
        "success and your private life."},
    {9, "It's a time of compassion and service. You will be drawn to help others and to think "
        "about the wider world. Some chapters of your life may close during this period. Let go of "
        "what is finished with grace. Your generosity and understanding will bring you respect and "
        "inner satisfaction."},
    {11, "It's a time of inspiration and heightened intuition. You may feel a strong pull towards "
         "spiritual matters, art or healing, and you can become an example for others. This period "
         "asks you to follow your ideals while staying practical. Your nerves may be tested, so "
         "rest often and keep calm. Trust the insights that come to you and share them with those "
         "who are ready to listen. Your work in this period may touch many lives and win you "
         "respect and trust, so keep your purpose clear and your heart open."},
    {22, "It's a time of great potential and large achievements. You may take on projects that "
         "affect many people and you will have the chance to turn your vision into reality. Your "
         "practical skill and your ideals work together in this period. The responsibility is "
         "heavy and the pressure can be strong. Keep your plans realistic, build step by step and "
         "rely on those you trust."},
    // Rows 144 to 152: Personal Day Number
    {1, "This is an excellent occasion to think about self and about our tactics, dreams, wants "
        "and desires. Watch out for your independency. Explore creative ideas and stay away from "
        "negative opinions. Implement your plans and actions today."},
    {2, "Today is a day for patience and cooperation. Work quietly with others and listen to what "
        "they have to say. Avoid arguments and be tactful. Small details need your attention "
        "today. Do not force matters; let them unfold."},
    {3, "Today is a good day to express yourself. Meet friends, share your ideas and enjoy some "
        "fun. Your creativity is high, so write, draw or plan something new. Be careful not to "
        "waste time or money on trifles today."},
    {4, "Today you should get organized and work hard. Deal with routine tasks, paperwork and "
        "practical matters. Stick to your plan and do not look for short cuts. Steady effort today "
        "will bring solid results."},
    {5, "Expect the unexpected today. Change is in the air, and you may travel, meet new people or "
        "hear surprising news. Be flexible and enjoy the variety. Avoid rash decisions and do not "
        "overindulge today."},
    {6, "Today is a day for home and family. Spend time with the people you love and offer help "
        "where it is needed. Take care of your duties and make your surroundings pleasant. Be "
        "kind, but do not interfere in others' affairs today."},
    {7, "Today calls for quiet reflection. Spend time alone, read or relax. Trust your intuition "
        "and think before you act. Avoid big decisions today."},
    {8, "Today is a good day for business and money matters. Make important decisions, ask for "
        "what you deserve and take charge. Your judgement is sound today. Be confident but fair, "
        "and keep your goals in sight."},
    {9, "Today is a day for completion and letting go. Finish old tasks, clear out what you no "
        "longer need and forgive your past hurts. Be generous and patient, show kindness to "
        "everyone, and help where you can. Do not start big new projects today; instead, reflect "
        "on what you have learned and prepare yourself for the new cycle that begins tomorrow."},
    // Rows 153 to 161: Personal Month Number
    {1, "This is a time for new beginnings. Explore creative ideas. Maintain your individuality. "
        "The projects and assignments started during this time are the seeds being planted for "
        "later growth. You need to be aware of what you are planting."},
    {2, "This month calls for patience and cooperation. Work with others and be tactful. Things "
        "may move slowly, so do not push. Pay attention to relationships and to small details. "
        "Your sensitivity is your strength this month."},
    {3, "This month is a time for self-expression and social life. Enjoy friends, share your ideas "
        "and let your creativity flow. Be careful not to scatter your energy or spend too freely "
        "this month."},
    {4, "This month you need to work hard and get organized. Focus on practical matters, routines "
        "and your health. Progress comes from discipline. Avoid any short cuts this month."},
    {5, "Expect change and movement this month. You may travel, meet new people or try new things. "
        "Be flexible and open to surprises. Avoid impulsive decisions and keep some order in your "
        "affairs."},
    {6, "This month your home and family need your full attention. Take care of your "
        "responsibilities and help those who depend on you. It is a good time for love and for "
        "making your surroundings beautiful. Do not neglect your own needs this month, and accept "
        "help when it is offered."},
    {7, "This month is a time for rest and reflection. Study, think and listen to your inner "
        "voice. Spend time alone when you can. Do not force events or rush into decisions this "
        "month; the answers will come."},
    {8, "This month favors business, money and career matters. Take charge, make decisions and ask "
        "for the recognition you deserve. Be confident and practical. Use your authority fairly "
        "this month."},
    {9, "This month brings endings and completion. Finish what you have started and let go of what "
        "no longer serves you. Be generous and forgiving. Clear the way, because a new beginning "
        "is near. Avoid starting major new projects this month."},
    // Rows 162 to 170: Personal Year Number
    {1, "It's a perfect time to start any new venture. Listen to your heart and fulfill it.   "
        "Follow your dreams and start implementing. It is not a time to wait around as you could "
        "miss out on what this year has to offer. You really are setting the pace for the next "
        "nine years. Hard work is the key to making this year successful."},
    {2, "This year is a time of patience and cooperation. The seeds you planted last year need "
        "time to grow, so do not rush. Work with others, form trusting bonds and pay attention to "
        "details. Relationships will be important this year."},
    {3, "This year is a time to enjoy life and express yourself. Your creativity, social life and "
        "communication skills are highlighted. Make new friends and share your talents. Travel and "
        "entertainment may come your way. Be careful not to scatter your energy or spend too much "
        "this year."},
    {4,
     "This year calls for hard work and discipline. It is a time to build solid foundations in "
     "your work, home and finances. Get organized and stick to your plans. Progress may feel slow, "
     "but your efforts will pay off. Look after your health and do not take short cuts this year."},
    {5,
     "This year brings change, freedom and new experiences. You may travel, move, change jobs or "
     "meet new people. Be open to opportunities and adapt to new situations. It is a lively and "
     "exciting year. Avoid hasty decisions and do not let restlessness lead you astray this year."},
    {6, "This year your focus will be on home, family and responsibility. Marriage, children or "
        "caring for relatives may take your time and energy. Your relationships can deepen and "
        "grow stronger. Serve others with a loving heart, but make sure you also take care of your "
        "own needs this year."},
    {7,
     "This year is a time for reflection, study and inner growth. Slow down and take time to "
     "understand yourself. Read, learn and develop your spiritual side. Material matters may move "
     "slowly this year. Do not force events; trust your intuition and rest when you need to."},
    {8, "This year is a time of achievement and reward. Business, career and money matters are "
        "highlighted. Take charge of your affairs and aim high. You may receive recognition and "
        "promotion for your past efforts. Be confident and use your authority wisely this year."},
    {9, "This year is a time of completion and endings. The nine-year cycle is coming to a close, "
        "so finish old projects and let go of what no longer serves you. Relationships, jobs or "
        "habits that have run their course may end. Be generous, forgive old hurts and help others "
        "where you can. Do not start major new ventures this year; instead, clear the way and "
        "prepare yourself for the fresh start that next year will bring."},
}};

} // namespace quillane::modLearnNumerology::content
