#include "numerology/NumerologyContent.h"

namespace quillane::modLearnNumerology::content {

namespace {

// Numbers 6, 7 and 8 read the same for both bridge numbers: the paragraphs are
// held once and used by rows 81 to 83 and again by rows 90 to 92.
constexpr char kBridgeSix[] =
    "Responsibility is the bridge you must build. Care for the people around you and be loving, "
    "fair and helpful at home and in your community. When you give support and accept it in "
    "return, the two sides of your nature come closer together and you feel more at peace with "
    "yourself. Judge yourself and others gently; harmony begins with acceptance.";
constexpr char kBridgeSeven[] =
    "Look within and spend some quiet time in thought. Study, reflection and trust in your "
    "intuition will show you what you really need, and where your outer life has drifted from your "
    "inner one. Understand yourself before you try to change. Your inner search will help you "
    "unite the two sides of your nature.";
constexpr char kBridgeEight[] =
    "A healthy balance between material and spiritual needs is the key for you. Take charge of "
    "your life, handle money wisely and use your authority fairly. Confidence and good judgement "
    "will help you bring the two sides of your nature into harmony, and success will feel right "
    "rather than empty.";

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
    {2, "You are a peacemaker. Diplomatic, cooperative and sensitive to the feelings of others, "
        "you work well in partnership, and you have the patience to see the small details that "
        "others miss. You are a good listener and a loyal friend. The negative trait of this "
        "number includes becoming too dependent on others and being easily hurt. Build your "
        "confidence and speak up for yourself."},
    {3, "Self-expression is your great gift. You are creative, charming and full of optimism. "
        "Writing, speaking, acting and the arts come naturally to you, and you can make people "
        "laugh and feel at ease. You have a bright imagination and a talent for inspiring others. "
        "The negative trait of this number is a tendency to scatter your energy and to be careless "
        "with money and time. Learn to focus and finish your work."},
    {4, "This number marks a builder and an organizer. You are reliable, methodical and honest, "
        "and you take your duties seriously. You are at your best when you have a clear plan and "
        "solid goals. Others trust you to get the job done properly. The negative trait of this "
        "number includes being stubborn, narrow-minded and too strict with yourself and others. "
        "Allow room for change and for some fun."},
    {5, "Yours is the number of the free spirit. You are adventurous, versatile and quick to "
        "learn. You love travel, variety and meeting new people, and you adapt easily to any "
        "situation. You are a natural salesperson and a clever communicator. The negative trait of "
        "this number includes restlessness, impatience and a dislike of commitment. Avoid "
        "overindulgence and learn to see things through."},
    {6, "This shows that you are a caring and responsible person. You are loyal, kind and "
        "protective of your family and community. You have a strong sense of justice and an eye "
        "for beauty. Teaching, healing and counseling suit you well. People feel safe with you. "
        "The negative trait of this number includes interfering in the lives of others and "
        "worrying too much. Care without trying to control."},
    {7, "You are a thinker and a seeker. You have a sharp, analytical mind and a deep interest in "
        "the mysteries of life. Research, science and spiritual study suit you well. You work best "
        "alone and in quiet surroundings, and your insight grows and ripens with the years."},
    {8, "This shows that you have the power to achieve material success. You are ambitious, "
        "confident and a capable manager of money and people. You think big and you have the drive "
        "to turn plans into profit. Business, finance and positions of authority suit you. The "
        "negative trait of this number includes becoming greedy, domineering or too focused on "
        "status. Remember that power is best used for the good of all."},
    {9, "A humanitarian spirit runs through this number. You are generous, compassionate and "
        "idealistic, and you want to make the world a better place. You are tolerant of others and "
        "you have a wide view of life. Art, medicine, teaching and charity work may attract you. "
        "The negative trait of this number includes moodiness and a tendency to hold on to the "
        "past. Learn to forgive and to let go."},
    {11,
     "Eleven is a master number, and it makes you an inspired idealist with strong intuition and a "
     "gift for reaching the hearts of people. You may become a teacher, a healer or a spiritual "
     "guide. You often sense things long before others do, and your ideas can open new paths for "
     "many. Harsh and noisy places wear you down, so seek calm surroundings. The negative trait of "
     "this number includes nervous tension and dreams that never leave the drawing board. Keep "
     "both feet on the ground and turn your visions into practical action."},
    {22, "With twenty-two you carry the number of the master builder. You have the vision to see "
         "great plans and the practical skill to carry them out. You can lead large projects, "
         "organizations or movements that serve many people. You are disciplined, capable and "
         "confident. Use your strength to serve others and your work will outlast you."},
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
    {2, "Born on the 2nd, you are a natural peacemaker. You sense the moods of others quickly and "
        "know how to calm a tense room with a kind word. Partnerships bring out the best in you, "
        "and you are often the quiet helper behind someone else's success. You notice the small "
        "details that others overlook, and many with this birthday have a fine feeling for music "
        "and rhythm. Criticism can wound you more deeply than it should, so give your own worth as "
        "much weight as the opinions of others."},
    {3,
     "Your birthday gives you a lively imagination and a gift for words. You are sociable and "
     "cheerful, and you can turn your feelings into stories, songs or pictures that move other "
     "people. Friends come easily and you are at your best in good company. Your interests are "
     "many and they change quickly, which keeps life colorful but can leave work half done. Choose "
     "a few goals and give them your full attention, and your talents will carry you a long way."},
    {4, "The 4th brings a practical, dependable nature. You like order, clear plans and steady "
        "progress, and you have the patience to finish what others abandon. People trust you with "
        "important work because you are honest and you keep your word. Many with this birthday are "
        "skilled with their hands and enjoy building, repairing or gardening. You can be rigid "
        "when plans change without warning. A little flexibility, and some time set aside for "
        "rest, will make your hard work lighter."},
    {5, "Variety is the breath of life for you. Quick, clever and curious, you adapt easily to new "
        "places and new people, and you rarely stay bored for long. You have a talent for "
        "communication and can sell an idea to almost anyone. Routine work wears you down, so you "
        "are happiest in jobs that involve travel, change or contact with the public. Your freedom "
        "matters a great deal to you, but so does finishing what you promise."},
    {6, "Home and family stand at the heart of your life. You are caring, responsible and always "
        "ready to help a friend in need, and people feel welcome in your company. You have a good "
        "eye for beauty, color and design, and your surroundings usually reflect it. Teaching, "
        "nursing and counseling often suit those born on the 6th. You give so much to others that "
        "you can forget your own needs. Remember too that the people you love must learn some "
        "lessons for themselves."},
    {7,
     "A sharp mind and a deep inner life belong to the 7th. You like to study, question and "
     "understand the reason behind things, and you are rarely satisfied with easy answers. You are "
     "intuitive and often reserved, and you need time alone to think. Science, research, "
     "philosophy and spiritual study may all attract you. Others can find you hard to know. Share "
     "your thoughts with those close to you, so that they do not feel shut out of your world."},
    {8, "You have a strong talent for business and management. Ambitious and efficient, you handle "
        "money and authority well, and you think in big terms from an early age. You are a good "
        "judge of value and of people, and you are willing to work long hours for success. "
        "Recognition matters to you. Your drive can crowd out rest and friendship, so keep a "
        "balance between work and private life, and use your power with fairness."},
    {9,
     "The 9th gives you a generous and broad-minded spirit. You care about people and causes far "
     "beyond your own circle, and you have a strong sense of idealism. Artistic talent is common "
     "with this birthday, as is a gift for inspiring others. You are forgiving and tolerant, and "
     "people of every background feel at ease with you. Endings come often in your life. Let go of "
     "the past with grace, and do not expect everyone to share your high ideals."},
    {10, "People associated with this day are independent and ambitious. You have strong "
         "leadership qualities and plenty of new ideas, and you like to start projects and see "
         "them move. You have the courage to follow your own path and you recover quickly from "
         "setbacks. The zero beside the one widens your vision and gives you many chances to begin "
         "again. Your pride can keep you from asking for help. Listen to good advice, because the "
         "best leaders also know how to follow."},
    {11, "Eleven is a master number, and those born on this day are intuitive and idealistic. You "
         "often sense what others feel before they say it, and you have a gift for inspiring "
         "people. Teaching, healing, the arts and spiritual work may all call to you. Your nerves "
         "are sensitive and harsh words or noisy places can upset you more than you show. You may "
         "doubt yourself even when others admire you. Find quiet time to rest, and trust the inner "
         "voice that guides you, because it is seldom wrong."},
    {12,
     "Your mind is bright and creative. You are good with words, quick to laugh and charming in "
     "company, and you enjoy sharing ideas with anyone who will listen. Writing, acting and design "
     "come naturally to many with this birthday. You also have a serious streak and a wish to be "
     "useful. Your moods can change quickly. Steady habits will give your gifts room to grow."},
    {13, "The 13th brings a capacity for hard work. You can turn ideas into practical results and "
         "you are not afraid of effort, however long it takes. You have a good sense of form, and "
         "many with this birthday have artistic or technical skill. A steady home life matters to "
         "you. Sudden changes may test you now and then, but each one leaves you better prepared. "
         "Avoid becoming stubborn or too strict, and the rewards you seek will come."},
    {14,
     "You love change and new experiences. Versatile and quick thinking, you deal well with people "
     "and learn fast from whatever life hands you. Travel, writing, trade or any work with variety "
     "may suit you. You have a taste for risk and a restless streak. Take care with money and with "
     "your health, and balance your need for freedom with some order and a few firm commitments."},
    {15, "Warmth and generosity mark those born on the 15th. You have a magnetic charm that draws "
         "people to you, and you take your duties to family and friends seriously. Artistic gifts "
         "and a talent for teaching are common with this birthday, and you learn quickly. Money "
         "often comes to you through your own efforts and the help of others. Your love can become "
         "possessive. Let the people you care for find their own way."},
    {16, "This birthday gives you a questioning mind and a search for deeper meaning. You may "
         "write well and enjoy study, and you value your independence. Your life may bring sudden "
         "changes that overturn your plans, yet each one teaches you something important. You are "
         "more sensitive than you let others see. Keep an open heart, and do not hide your "
         "feelings behind a cool surface."},
    {17, "Born on the 17th, you have a strong mind for business and finance. You are independent "
         "and able to plan for the long term, and you can take charge in difficult times. "
         "Research, writing and management may all suit you, since you combine careful thought "
         "with practical skill. Your judgement is usually sound. Others may see you as cold. Let "
         "them see the kindness behind your drive."},
    {18, "You are a natural leader with a wide view of the world. Capable and ambitious, you also "
         "care about the welfare of others, and you can organize people and projects well. You "
         "have a strong sense of justice and may be drawn to law, medicine or public work. "
         "Criticism and impatience are your weak points. Look after your own needs while you help "
         "others, or you may wear yourself out."},
    {19, "Independence comes first for those born on the 19th. You like to do things your own way "
         "and you are able to stand on your own feet from an early age. You have drive, ambition "
         "and plenty of ideas, and you recover from hard times with strength. You may have to "
         "learn the value of teamwork. Accept help and advice when they are offered, and do not "
         "let pride keep you from the support you deserve."},
    {20, "Yours is a warm heart with a talent for diplomacy. You work well as part of a team, and "
         "people often ask you to settle their disputes. You are intuitive and notice what others "
         "feel. Music, beauty and quiet company please you. Your feelings are easily hurt, so "
         "stand up for yourself when it is needed."},
    {21, "The 21st makes you social, creative and expressive. You enjoy company and have a talent "
         "for words, writing or performance. Friendly and optimistic, you are good at bringing "
         "people together, and you often find success through the people you meet. Your "
         "imagination is lively and your ideas come quickly. Without some discipline they may stay "
         "ideas. Give them a form, so they grow into finished work that others can enjoy."},
    {22, "Twenty-two is the number of the master builder, and people born on this day are "
         "practical visionaries. You can see a large plan clearly, and then carry it out, step by "
         "step, with skill and common sense. Big projects suit you, and many with this birthday "
         "build businesses, institutions or homes that serve people long after them. Others trust "
         "your judgement in serious matters, and you are willing to take on great responsibility. "
         "The weight of your own ambition can make you tense, and you might be hard on yourself "
         "when progress is slow. Learn to relax and to share the load with others."},
    {23, "Quick, versatile and full of life, you get on with all kinds of people. You have a gift "
         "for communication and may do well in sales, travel, writing or medicine. Freedom and new "
         "experiences matter a great deal to you, and you learn from life more than from books. "
         "Your enthusiasm makes you start many things at once. Finish the projects that you begin "
         "so eagerly, and your talents will bring lasting success."},
    {24, "Loyalty and devotion to home and family mark the 24th. You are a dependable friend and a "
         "caring partner, and you have a good sense of balance and fairness. Many with this "
         "birthday have artistic or practical gifts, and they work steadily until a job is done. "
         "You may carry many burdens alone. Allow others to take care of you as well."},
    {25, "An analytical and intuitive mind belongs to those born on the 25th. You like to observe "
         "and to understand before you act, and you can spot what others overlook. You may be "
         "drawn to study, research or spiritual matters, and you value your privacy. Your first "
         "impressions are usually right. You can be a perfectionist, so do not be too hard on "
         "yourself when things are imperfect."},
    {26,
     "You have good business sense and a strong concern for family. Practical and ambitious, you "
     "are capable of managing people and money, and you like to see your efforts produce results. "
     "You are generous with those you love and proud of their success. You may take over decisions "
     "that belong to others. Share them, and your home and your work will both run more smoothly."},
    {27, "Compassion and wisdom beyond your years come with the 27th. You have broad interests and "
         "a talent for teaching and leading others, and you are drawn to causes that help people. "
         "Artistic or healing gifts are common with this birthday. You are tolerant and "
         "understanding, though you can be impatient with those who will not think for themselves. "
         "Balance your ideals with the needs of practical life."},
    {28, "Born on the 28th, you are independent and ambitious, yet you also value cooperation. You "
         "have strong leadership qualities and you are good at starting new projects. You are "
         "determined and you have a good sense of fairness. You like to be your own boss. Listen "
         "to others and finish what you begin."},
    {29, "The 29th carries the power of the master number eleven. You are intuitive, sensitive and "
         "often inspired, with a strong imagination and a deep feeling for others. Spiritual "
         "study, art and counseling may attract you, and you can lift the spirits of the people "
         "around you. Your emotions run high. On one day you may be full of hope and on the next "
         "full of doubt. Keep your balance, and seek out calm people and places."},
    {30, "You are creative, friendly and expressive. You have a talent for words and a good "
         "imagination, and you enjoy being with people. Cheerful and often the center of "
         "attention, you may have artistic or writing skills that deserve training. Stay focused "
         "on your goals, and use your charm to open doors rather than to escape hard work."},
    {31, "A good memory and steady determination are the gifts of the 31st. You like to build for "
         "the future and you work hard for security, yet you also enjoy travel and new ideas. You "
         "have a fine sense of order. Fixed habits may hold you back at times, so make room for "
         "change, and for friends and fun."},
    // Rows 75 to 83: Life Path / Expression Bridge Number
    {0, "You will probably experience a great deal of peace in your life. This is a very lucky "
        "combination and generally indicates progress in these areas."},
    {1, "Independence is what you must develop. Trust your own judgement and stand up for your "
        "ideas, even when others doubt them. Do not wait for someone else to show you the way. As "
        "your confidence grows, the gap between the path you walk and the talents you were born "
        "with will close."},
    {2, "You should learn to be more patient and cooperative. Listen to the views of others and be "
        "sensitive to their feelings, especially when you are in a hurry to move on. Teamwork and "
        "diplomacy will help you combine what you are with what you must become."},
    {3, "Express yourself more freely. Share your ideas, your feelings and your creative gifts "
        "with others instead of keeping them for a better day. A more optimistic outlook will make "
        "life lighter. Joy and communication will help you close the gap between your path and "
        "your talents."},
    {4, "Order and discipline are what your life is asking for. Make plans, set clear goals and "
        "work steadily towards them, one task at a time. Patience and hard work will bring your "
        "natural abilities into line with your path, and the results will last."},
    {5, "You need to welcome change and new experiences. Be more flexible and open to new ideas, "
        "and do not cling to old habits simply because they feel safe. A journey or a new skill "
        "will help you bring your talents and your life path together."},
    {6, kBridgeSix},
    {7, kBridgeSeven},
    {8, kBridgeEight},
    // Rows 84 to 92: Heart Desire / Personality Bridge Number
    {0, "This is very lucky number and you will make people feel comfortable around you. Sometimes "
        "your life may go haywire if your Life Path number or your Expression numbers are also "
        "identical to your Heart's Desire number and your Personality number. Don't worry it is "
        "not constant."},
    {1, "Show your true self with more confidence. Say what you think and take the lead now and "
        "then, rather than waiting for others to decide. When people see the strength you feel "
        "inside, they will understand you better and your relationships will grow."},
    {2, "Gentleness and tact will serve you well. Listen closely and pay attention to the feelings "
        "of others. A softer manner will let people see the caring person you are inside, and will "
        "bring more harmony into your friendships and your home."},
    {3, "Let others see your joy and your creativity. Talk more openly about your feelings and do "
        "not hide your sense of fun behind a serious face. When you express yourself freely, "
        "people will see the real you and feel closer to you."},
    {4, "You need to show others that you can be relied on. Be more organized and keep your "
        "promises. When your actions are steady and practical, people will trust you and see the "
        "solid person you truly are."},
    {5, "Allow yourself more freedom and variety. Do not be afraid to try new things or to show "
        "your adventurous side. When you relax and let your curiosity show, people will enjoy your "
        "company and understand your true nature."},
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
    {2, "As you grow older, peace and close relationships will matter to you more and more. You "
        "will become more patient and diplomatic, and partnership and cooperation will bring you "
        "fulfillment. Your sensitivity, once a burden, will become a gift that helps you comfort "
        "and support others in your later years."},
    {3, "In your later years, your creative side will come to life. You will enjoy expressing "
        "yourself through words, art or social life, and your optimism will grow. New friends will "
        "come easily, often younger than you. Take the time to develop the talents you set aside "
        "when duty and work left no room for them."},
    {4, "Order and security will grow in importance as you mature. You will want to build "
        "something solid for yourself and your family, and your hard work and discipline will be "
        "rewarded. People will know you as someone reliable and practical. Your later years will "
        "rest on firm foundations of your own making."},
    {5, "Freedom and new experiences will call to you in old age. Travel and adventure may fill "
        "your later years, and you will stay young in spirit. Use that freedom wisely, to learn "
        "and to grow."},
    {6, "Family and home will become the center of your life. You will find great joy in caring "
        "for others and in making your surroundings beautiful, and grandchildren or younger "
        "relatives may bring you special happiness. You will take on responsibility in your "
        "community. Your love and service will be well rewarded."},
    {7, "With age you will turn inward and seek deeper understanding. Study, reflection and "
        "spiritual interests will fill your later years, and you will gain wisdom and insight that "
        "others lack. Time alone, in nature or among books, will become precious to you. People "
        "will respect your knowledge and come to you with their questions."},
    {8, "Material success and recognition are likely to come later in life. Your ability to manage "
        "money and people will grow, and you may reach a position of authority that eluded you "
        "when you were young. Use your power wisely and generously, and your later years will be "
        "comfortable and secure. Investments made long ago may now bear fruit."},
    {9, "A strong wish to serve others and the world will grow in you. You will become more "
        "compassionate and tolerant, and you may be drawn to charity, teaching or the arts. Old "
        "grievances will lose their hold, and forgiveness will come more easily. Your generosity "
        "will bring you deep satisfaction and the love of many people."},
    {11,
     "As you mature, your intuition and spiritual awareness will grow stronger. You may become a "
     "source of inspiration and guidance, and your later years can bring a sense of mission. "
     "Teaching, healing and the arts may attract you. Your idealism may clash with the practical "
     "demands of daily life, and you will have to find a way to honor both. Look after your nerves "
     "and keep both feet on the ground, and your wisdom will light the way for others."},
    {22,
     "Twenty-two promises great things on a large scale in your later years. Your vision and "
     "practical skill will come together, and you may build something that benefits many people "
     "and lasts long after you. Others will trust you with large responsibilities. Keep your "
     "ambitions realistic and take care of your health, and your life's work will be remembered."},
    // Rows 113 to 123: Pinnacle Number
    {1, "This signifies the period when you will be aiming for independence. You want your "
        "individuality to be accepted and your ideas and achievements to be recognized. You have "
        "to rely on only your strength, as you may not receive any support from family. "
        "Responsibilities will be fulfilled if you're allowed to lead. You need to put in effort "
        "to achieve success and rewards."},
    {2, "Cooperation and partnership shape the years of this pinnacle. You will learn patience and "
        "diplomacy, and success is more likely to come through working closely with others than "
        "through striking out alone. Marriage and other close relationships are often highlighted. "
        "Your sensitivity will increase, which helps you understand people but also makes you "
        "easier to hurt. Progress may be slow, yet it will be steady, and the support of others "
        "will carry you forward."},
    {3, "A period of creativity and self-expression opens before you. Your social life will "
        "flourish and you will enjoy friends, travel and entertainment. It is a fine time for "
        "writing, speaking and the arts, and your optimism will attract opportunities. Spending "
        "too freely and scattering your energy are the dangers. Use these cheerful years to "
        "develop your talents and to share them with others."},
    {4, "Hard work and patient building fill this pinnacle. You will be asked to lay solid "
        "foundations for your future, in your work, your home and your finances. Avoid short cuts, "
        "however tempting they are. The effort you make during these years will bring security and "
        "lasting rewards later on."},
    {5,
     "Under this pinnacle, life speeds up. You may travel, change jobs or move home, and you will "
     "meet many new people along the way. Plans made at the start of the period may look quite "
     "different by its end. You learn from experience now, not from books, and you will need to "
     "adapt quickly. Rash decisions and overindulgence can undo your gains. Embrace the changes "
     "with an open mind, and these years will widen your horizons and free you from old limits."},
    {6, "Responsibility, love and family are the themes of these years. Marriage, children and "
        "home will stand at the center of your life, and you will be asked to care for others and "
        "to serve your community. It is a good time for settling down and for creating beauty "
        "around you. The duties may be heavy at times. Accept them with a loving heart, but do not "
        "forget your own needs along the way."},
    {7,
     "You enter a period of reflection, study and inner growth. You will feel the need to "
     "understand yourself and the deeper meaning of life, and education, research and spiritual "
     "interests will reward you. You may spend more time alone than before. Material gains may "
     "come slowly, and you may wonder whether you are falling behind others. Trust your intuition: "
     "the wisdom you gain in this quiet pinnacle will serve you for the rest of your life."},
    {8, "Achievement in the material world is the promise of this pinnacle. Through your own "
        "efforts you can gain money, power and recognition, and business and management will bring "
        "good results. You will need sound judgement, confidence and the courage to think big. "
        "Others may look to you to take charge. Use your power with fairness and keep your values, "
        "and the success you build will be lasting."},
    {9, "During this pinnacle you will become more compassionate and more aware of the needs of "
        "the world. Some parts of your life may come to an end to make room for new ones, and you "
        "may be asked to forgive old hurts. It is a good time for charity, the arts and healing "
        "work, and for travel that widens your view. Let go of what is finished. Your generosity "
        "will be returned to you in ways you do not expect."},
    {11, "Eleven marks a pinnacle of inspiration and spiritual awakening. Your intuition will be "
         "very strong and you may feel called to a higher purpose. You can become a guide, teacher "
         "or healer, and people will look to you for insight. Idealism and vision run high, and "
         "you may receive recognition or even fame. The same years bring nervous strain, and a gap "
         "can open between your dreams and daily life. Keep a calm mind, look after your health, "
         "and put your ideals into practical form so that others can benefit from them."},
    {22, "The master number twenty-two brings a period of great achievement on a large scale. You "
         "will have the chance to turn your biggest dreams into reality and to build something "
         "that serves many people. Your vision and practical skill work together now, and others "
         "will trust you with heavy responsibility. It is a time for large projects, public work "
         "and lasting results. The demands on your strength will be great. Stay disciplined, keep "
         "your aims realistic, and rely on those you trust. What you build during this pinnacle "
         "may stand long after you, so build it with care and integrity."},
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
     "Oversensitivity is your challenge. You may be easily hurt by small remarks and fear the "
     "judgement of others. You may lose yourself in the needs of people around you. Learn to take "
     "criticism calmly and to stand firm in your own views. Develop patience and tact without "
     "becoming timid. Cooperation is good, but you must not give up your own identity for peace."},
    {3,
     "Your challenge lies in self-expression. You may hide your feelings or feel shy about sharing "
     "your ideas, or you may scatter your energy in idle talk. Learn to express yourself honestly "
     "and with purpose. Develop your creative gifts with discipline. Do not fear criticism of your "
     "work. When you find your true voice, your confidence will grow and life will feel lighter."},
    {4,
     "Order and discipline are what you must develop. You may find routine work dull, or you may "
     "become too rigid and set in your ways. Learn to be patient and to finish what you begin. Do "
     "not look for short cuts. Accept limits as part of building something solid. Balance hard "
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
    {7,
     "Isolation and doubt are the obstacles you face. You may feel different from others and hide "
     "behind a wall of reserve. You may lack faith in yourself or in life. Learn to open up and to "
     "share your thoughts with people you trust. Study and reflection will help you, but do not "
     "cut yourself off from the world. Develop your spiritual side and trust your inner voice."},
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
    {2,
     "Patience and cooperation set the tone of this period. Progress may come slowly, and you will "
     "need to work with others rather than alone. Partnerships, marriage and friendships take on "
     "special importance, and much of what you gain will come through them. Be tactful and gentle, "
     "and pay attention to details. Do not push too hard; let things grow in their own time."},
    {3,
     "Creativity and social growth fill these years. You will make friends easily and enjoy life, "
     "and your talents for writing, speaking and the arts will develop. Opportunities often arrive "
     "through the people you meet. Be careful not to waste your energy on too many pursuits. Use "
     "your gifts with purpose, and this period will leave you with skills and friends for life."},
    {4, "This period asks for hard work and steady effort. You will build the foundations of your "
        "future. Discipline, order and patience are required. Progress may seem slow, but what you "
        "build now will stand for years."},
    {5, "Expect change and freedom in this period. You may travel, move or try many different "
        "kinds of work, and life will be busy and full of new experiences. It is a good time to "
        "learn and to explore, and to find out what truly suits you. Hasty decisions and scattered "
        "energy are the risks. Friends from many walks of life will widen your view. Keep some "
        "stability while you enjoy your freedom."},
    {6, "Home, family and community will take much of your attention during this period. You may "
        "marry, raise children or care for relatives, and friends will lean on you. These years "
        "bring warmth and close ties, along with duties that cannot be put off. Your sense of "
        "beauty may also lead you to improve your home. Accept them with a willing heart, but make "
        "sure you also take care of yourself."},
    {7, "You will look inward in this period and seek a deeper understanding of life. Education, "
        "research and spiritual interests will be rewarding, and you may become an expert in your "
        "field. Quiet places and time alone will appeal to you more than crowds. Some people may "
        "find you distant, so let those you love share your thoughts. Trust your intuition and be "
        "patient, because the answers you seek will come."},
    {8, "Ambition and material progress mark these years. You will have chances to gain money, "
        "position and recognition, and business and management will be favored. You need "
        "confidence and good judgement, and the courage to take on responsibility. Work hard and "
        "be fair in your dealings. Keep a balance between success and your private life."},
    {9, "Compassion and service shape this period. You will be drawn to help others and to think "
        "about the wider world, and you may travel or work among people of other cultures. Some "
        "chapters of your life may close. Let go of what is finished with grace. Your generosity "
        "and understanding will bring you respect and inner satisfaction."},
    {11, "As a master number, eleven brings a period of inspiration and heightened intuition. You "
         "may feel a strong pull towards spiritual matters, art or healing. Your ideals will ask a "
         "great deal of you, and daily life may seem dull beside them, so find practical ways to "
         "serve what you believe in. Your nerves may be tested; rest often and keep calm. Trust "
         "the insights that come to you and share them with those who are ready to listen. Work "
         "done in this period can touch many lives and be long remembered."},
    {22, "Twenty-two brings great potential and large achievements. You may take on projects that "
         "affect many people, and you will have the chance to turn your vision into reality. Your "
         "practical skill and your ideals work together in this period. The responsibility is "
         "heavy and the pressure can be strong. Keep your plans realistic, build step by step, and "
         "rely on those you trust."},
    // Rows 144 to 152: Personal Day Number
    {1, "This is an excellent occasion to think about self and about our tactics, dreams, wants "
        "and desires. Watch out for your independency. Explore creative ideas and stay away from "
        "negative opinions. Implement your plans and actions today."},
    {2, "Patience and cooperation win more than force. Work quietly with others and listen to what "
        "they have to say, even when you disagree. Today rewards tact, so let small quarrels pass. "
        "Give small details your attention, and let matters unfold in their own time."},
    {3, "Today is made for self-expression. Meet friends, share your ideas and enjoy some fun. "
        "Your creativity runs high, so write, draw or plan something new while the mood lasts. "
        "Keep an eye on your purse, as it is easy to waste time or money on trifles."},
    {4, "Get organized and work hard. Routine tasks, paperwork and practical matters all go well "
        "today, and a job you have put off can finally be finished. Check your accounts while you "
        "are at it. Stick to your plan and do not look for short cuts; steady effort brings solid "
        "results."},
    {5, "Expect the unexpected. Change is in the air: you may travel, meet new people or hear "
        "surprising news before the day is out. Be flexible, enjoy the variety and say yes to an "
        "unusual invitation. A rash promise made today could cost you later, however, and so could "
        "overindulgence."},
    {6, "Home and family call for your time today. Spend it with the people you love and offer "
        "help where it is needed. Take care of your duties and make your surroundings pleasant. Be "
        "kind, but do not interfere in the affairs of others unless you are asked."},
    {7, "Quiet reflection suits you today. Spend time alone, read or relax. Trust your intuition "
        "and think before you act; any big decision can wait."},
    {8,
     "Business and money matters go well today. Make important decisions, ask for what you deserve "
     "and take charge of your affairs, because your judgement is sound. A meeting with someone in "
     "authority may go your way. Be confident but fair, and keep your long-term goals in sight."},
    {9, "A day for completion and letting go. Finish old tasks, clear out what you no longer need "
        "and forgive past hurts. Be generous and patient, show kindness to everyone you meet, and "
        "help where you can. Today is not the moment to start big new projects; reflect instead on "
        "what you have learned, and prepare for the new cycle that begins tomorrow."},
    // Rows 153 to 161: Personal Month Number
    {1, "This is a time for new beginnings. Explore creative ideas. Maintain your individuality. "
        "The projects and assignments started during this time are the seeds being planted for "
        "later growth. You need to be aware of what you are planting."},
    {2, "Patience and cooperation are called for this month. Work with others and be tactful. "
        "Things may move slowly, so do not push. Relationships and small details deserve your "
        "attention, and your sensitivity is your strength."},
    {3, "Self-expression and social life come to the fore this month. Enjoy friends, share your "
        "ideas and let your creativity flow; a short trip or a party may lift your spirits. Be "
        "careful not to scatter your energy or spend too freely."},
    {4, "Work hard this month and get organized. Give your attention to practical matters, "
        "routines, your budget and your health. Progress comes from discipline; avoid short cuts."},
    {5, "Expect change and movement. This month may bring travel, new people or a chance to try "
        "something different. Be flexible and open to surprises. Avoid impulsive decisions and "
        "keep some order in your affairs."},
    {6, "Your home and your family need your full attention. Take care of your responsibilities "
        "and help those who depend on you. This month is a good time for love and for making your "
        "surroundings more beautiful. Do not neglect your own needs, and accept help whenever it "
        "is offered."},
    {7, "Rest and reflection serve you best. Study, think and listen to your inner voice, and "
        "spend time alone when you can. Do not force events or rush into decisions this month; the "
        "answers will come."},
    {8, "Business, money and career matters are favored this month, and a raise or a new position "
        "is possible. Take charge, make decisions and ask for the recognition you deserve. Be "
        "confident and practical, and use your authority fairly."},
    {9, "Endings and completion are the theme. Finish what you have started and let go of what no "
        "longer serves you. Be generous and forgiving. A new beginning is near, but this month is "
        "for clearing the way, not for starting major new projects."},
    // Rows 162 to 170: Personal Year Number
    {1, "It's a perfect time to start any new venture. Listen to your heart and fulfill it.   "
        "Follow your dreams and start implementing. It is not a time to wait around as you could "
        "miss out on what this year has to offer. You really are setting the pace for the next "
        "nine years. Hard work is the key to making this year successful."},
    {2, "Patience and cooperation mark this year. The seeds you planted last year need time to "
        "grow; do not rush them. Work with others, form trusting bonds and pay close attention to "
        "details. Relationships will matter more than usual."},
    {3, "Enjoy life and express yourself: this year highlights your creativity, your social life "
        "and your gift for communication. Make new friends and share your talents. Travel or "
        "entertainment may come your way, and a hobby may even turn into a source of income. The "
        "danger is scattered energy and money spent too easily."},
    {4, "Hard work and discipline are called for. This year you build solid foundations in your "
        "work, your home and your finances, and savings made now will protect you later. Get "
        "organized and stick to your plans. Progress may feel slow, but your efforts will pay off. "
        "Look after your health and do not take short cuts."},
    {5, "Change, freedom and new experiences arrive. You may travel, move house or even move "
        "abroad, change jobs or meet new people, and this year rewards those who adapt quickly to "
        "new situations. Life will be lively and exciting. Avoid hasty decisions, and do not let "
        "restlessness lead you astray."},
    {6, "Home, family and responsibility take center stage. Marriage, children or caring for "
        "relatives may claim much of your time and energy this year, and friends may turn to you "
        "for advice. Your relationships can deepen and grow stronger. Serve others with a loving "
        "heart, but make sure you also take care of your own needs."},
    {7,
     "Slow down and take time to understand yourself. This year is for reflection, study and inner "
     "growth. Read, learn, spend time in nature and develop your spiritual side. Material matters "
     "may move slowly. Do not force events; trust your intuition and rest when you need to."},
    {8, "Achievement and reward lie ahead. Business, career and money matters are highlighted this "
        "year, so take charge of your affairs and aim high. You may receive recognition and "
        "promotion for your past efforts, and investments made with care may bring good returns. "
        "Be confident and use your authority wisely."},
    {9, "The nine-year cycle is coming to a close. This year is for completion: finish old "
        "projects and let go of what no longer serves you. Relationships, jobs or habits that have "
        "run their course may end, and it is wiser to release them than cling to them. Be "
        "generous, forgive old hurts and help where you can. Major new ventures can wait; clear "
        "the way instead and prepare for the fresh start that next year will bring."},
}};

} // namespace quillane::modLearnNumerology::content
