// House paragraphs: what each house signifies.
#include "astrology/AstrologyParagraphs.h"

namespace quillane::modLearnAstrology::paragraphs {

const std::array<std::string_view, 12> kHouseAttributes = {
    // 0: 1st House
    "The first house is the house of the self. It is the ascendant, the sign that was "
    "rising on the eastern horizon at the moment of birth, and it is the starting point "
    "of the whole horoscope. This house governs the physical body, the appearance, the "
    "complexion and the general state of health. It shows the temperament and the way in "
    "which a person meets the world and is seen by others. Planets placed in this house "
    "have a strong influence on the personality. It is also the house of beginnings, and "
    "it describes the early years of life and the native's approach to any new "
    "undertaking. The sign on the cusp of this house and its ruling planet are studied "
    "first of all when a chart is read, since they colour everything that follows.",
    // 1: 2nd House
    "This house is traditionally known as the house of material possessions and wealth. "
    "It rules money that is earned by one's own efforts, movable property, savings and "
    "the way in which resources are managed. The second house also governs the family "
    "into which a person is born, the face, the mouth and the speech, and the food that "
    "one eats. It shows the values that a person holds and the sense of self worth. A "
    "strong second house promises financial security, while an afflicted one warns of "
    "losses and of difficulty in holding on to money. Jewellery, precious stones and "
    "other valuables are also judged from this house.",
    // 2: 3rd House
    "The third house governs brothers and sisters, cousins and neighbours. It rules all "
    "forms of communication: speech, letters, writing, messages and the media. It is the "
    "house of short journeys and of daily travel, and of the early education that a "
    "child receives at school. This house also shows courage, initiative and the efforts "
    "a person makes on his own behalf. It rules the hands, the arms, the shoulders and "
    "the lungs. A well placed third house gives a quick and curious mind and a talent "
    "for writing or speaking. Contracts, documents, signatures and small agreements are "
    "judged here.",
    // 3: 4th House
    "The fourth house is the house of the home and of the mother, and in Indian "
    "astrology it is called the 'Matristhan'. It governs the family, the household, "
    "domestic happiness and the place where one lives. It also rules land, buildings, "
    "property, vehicles and the ancestral roots of the family. This house lies at the "
    "bottom of the chart and shows the private, inner life and the emotional foundations "
    "of the native. It also describes the end of life and the conditions of old age. A "
    "strong fourth house brings comfort, a happy home and a loving bond with the mother, "
    "while an afflicted one may bring frequent changes of residence or unrest in the "
    "family.",
    // 4: 5th House
    "The fifth house is the house of creativity, pleasure and self expression. It rules "
    "children, romance, love affairs, entertainment, sports, hobbies and all forms of "
    "play. It also governs speculation, gambling and investment. In Indian astrology "
    "this house shows intelligence and the merit earned in past lives. It is the house "
    "of the artist, the actor and the teacher. A well placed fifth house gives a "
    "cheerful nature, talented children and success in creative work, while an afflicted "
    "one may bring disappointment in love or trouble through children. Pregnancy and the "
    "birth of the first child are also studied from this house.",
    // 5: 6th House
    "The sixth house governs health and illness, daily work and service to others. It "
    "rules employees, servants, co-workers and the conditions of one's employment. It "
    "also shows debts, disputes, litigation and enemies who work openly against the "
    "native. Small animals and pets belong to this house. The sixth house describes the "
    "kind of illness a person is prone to and the capacity to recover. A strong sixth "
    "house gives the power to overcome rivals and obstacles, while an afflicted one may "
    "point to poor health or trouble at work. It is sometimes called the house of "
    "service, as it shows what a person is willing to do for others.",
    // 6: 7th House
    "The seventh house is the house of marriage and of all partnerships. It stands "
    "opposite the ascendant and shows the kind of person one is drawn to and the "
    "relationship one forms with a spouse. It also rules business partners, contracts, "
    "agreements and dealings with the public. Open enemies, rivals and lawsuits belong "
    "to this house as well. The seventh house describes how a person relates to others "
    "on an equal footing. A well placed seventh house promises a happy marriage and "
    "fruitful partnerships, while an afflicted one can bring separation, divorce or "
    "conflict with others. Foreign trade and journeys made with a partner are also shown "
    "here.",
    // 7: 8th House
    "The eighth house is the house of death and regeneration, and of all that is hidden. "
    "It governs longevity, the manner of death, inheritance, legacies, insurance and "
    "money that comes through others, including the partner's wealth. It rules "
    "sexuality, the occult, research, mysteries and secret matters. It is also the house "
    "of deep psychological and spiritual transformation, of crises that change a person "
    "from within. A strong eighth house gives a long life, insight into hidden things "
    "and gains from unexpected sources, while an afflicted one may bring sudden losses, "
    "chronic illness or fear. The native's attitude towards death and the afterlife is "
    "studied here as well.",
    // 8: 9th House
    "The ninth house is the house of higher learning, philosophy and religion. It rules "
    "universities, law, publishing and long journeys to distant lands. It shows the "
    "beliefs, ideals and moral principles of the native. In Indian astrology it is the "
    "house of fortune and of the father, and also of the guru or spiritual teacher. A "
    "strong ninth house brings luck, wisdom, a respected position and a good "
    "relationship with teachers and elders. It is the house of pilgrimage and of the "
    "search for meaning in life. An afflicted ninth house may bring difficulties with "
    "the father or a loss of faith. Dreams and visions are sometimes read from it too.",
    // 9: 10th House
    "The tenth house is the highest point of the chart, the midheaven, and it is the "
    "house of career and public life. It rules profession, status, reputation, honour "
    "and authority. It shows how a person is seen by the world and what he achieves in "
    "it. This house also governs relations with employers, government and people in "
    "power, and in many traditions it stands for one of the parents. Planets placed here "
    "are very prominent in the life of the native. A strong tenth house gives success, "
    "fame and a high position, while an afflicted one may bring a fall from grace or "
    "frequent changes of work. The sign on its cusp is a strong pointer to a suitable "
    "profession.",
    // 10: 11th House
    "The eleventh house is the house of gains, friendships and hopes. It rules income "
    "from all sources, profits, rewards and the fulfilment of wishes. It governs "
    "friends, acquaintances, groups, clubs and societies, as well as elder brothers and "
    "sisters. It shows the aims and ideals that a person pursues and the support he "
    "receives from others in reaching them. This house is also connected with social "
    "causes and with the good of the community. A strong eleventh house brings many "
    "helpful friends and the fulfilment of long cherished desires, while an afflicted "
    "one may bring false friends and disappointed hopes. Rewards for work are also "
    "judged from it.",
    // 11: 12th House
    "The twelfth house is the house of losses, expenses and endings, and in Indian "
    "astrology it is known as the 'Vyaysthana', the house of expenditure. It governs "
    "hospitals, prisons, monasteries and all places of seclusion. It rules secret "
    "enemies, self undoing, sleep, dreams and the subconscious mind. It is also the "
    "house of charity, sacrifice and spiritual liberation, and of life in foreign lands. "
    "A strong twelfth house favours meditation, service to the needy and spiritual "
    "progress, while an afflicted one may bring heavy expenses, confinement or hidden "
    "sorrows. The bed, the feet and the left eye are traditionally given to it.",
};

} // namespace quillane::modLearnAstrology::paragraphs
