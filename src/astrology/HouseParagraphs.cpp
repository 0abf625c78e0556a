// House paragraphs: what each house signifies.
#include "astrology/AstrologyParagraphs.h"

namespace quillane::modLearnAstrology::paragraphs {

const std::array<std::string_view, 12> kHouseAttributes = {
    // 0: 1st House
    "The first house is the house of the self. It is the ascendant, the sign that was rising on "
    "the eastern horizon at the moment of birth, and it is the starting point of the whole "
    "horoscope. This house governs the physical body, the appearance, the complexion and the "
    "general state of health. It shows the temperament and the way in which a person meets the "
    "world and is seen by others. Planets placed in this house have a strong influence on the "
    "personality. It is also the house of beginnings, and it describes the early years of life and "
    "the native's approach to any new undertaking. The sign on its cusp and the planet that rules "
    "that sign are studied first of all when a chart is read, since they colour everything that "
    "follows.",
    // 1: 2nd House
    "This house is traditionally known as the house of material possessions and wealth. It rules "
    "money that is earned by one's own efforts, movable property, savings and the way in which "
    "resources are managed. The second house also governs the family into which a person is born, "
    "the face, the mouth and the speech, and the food that one eats. It shows the values that a "
    "person holds and the sense of self worth. Planets here colour the attitude to money: Jupiter "
    "or Venus tends to bring ease of gain, while Saturn teaches thrift through hard experience. "
    "Jewellery, precious stones and other valuables belong to this house as well.",
    // 2: 3rd House
    "The third house governs brothers and sisters, cousins and neighbours. It rules all forms of "
    "communication: speech, letters, writing, messages and the media. Short journeys and daily "
    "travel belong here, as does the early education that a child receives at school. This house "
    "also shows courage, initiative and the efforts a person makes on his own behalf. In the body "
    "it rules the hands, the arms, the shoulders, the lungs and the nervous system. Mercury is at "
    "home in this house, and planets placed here sharpen the mind and the tongue. Contracts, "
    "documents, signatures and small agreements are judged here.",
    // 3: 4th House
    "The fourth house is the house of the home and of the mother, and in Indian astrology it is "
    "called the 'Matristhan'. It governs the family, the household, domestic happiness and the "
    "place where one lives. Land, buildings, property, vehicles and the ancestral roots of the "
    "family are also ruled by it. Lying at the bottom of the chart, this house shows the private, "
    "inner life and the emotional foundations of the native. It also describes the end of life and "
    "the conditions of old age. Frequent changes of residence, or a deep attachment to one place, "
    "are read from the planets found here.",
    // 4: 5th House
    "The fifth house is the house of creativity, pleasure and self expression. It rules children, "
    "romance, love affairs, entertainment, sports, hobbies and all forms of play. Speculation, "
    "gambling and investment come under it as well. In Indian astrology this house shows "
    "intelligence and the merit earned in past lives. It is the house of the artist, the actor and "
    "the teacher, and it shows what gives a person joy. The Sun, its natural ruler, gives it "
    "warmth and generosity, and benefic planets here promise talented children and success in "
    "creative work. Pregnancy and the birth of the first child are studied from it.",
    // 5: 6th House
    "The sixth house governs health and illness, daily work and service to others. Employees, "
    "servants, co-workers and the conditions of one's employment are ruled by it. It also shows "
    "debts, disputes, litigation and enemies who work openly against the native. Small animals and "
    "pets belong to this house. The kind of illness a person is prone to, and the capacity to "
    "recover, are described here. Malefic planets are said to do well in the sixth, where they "
    "give the strength to defeat rivals and overcome obstacles. Sometimes called the house of "
    "service, it shows what a person is willing to do for others.",
    // 6: 7th House
    "The seventh house is the house of marriage and of all partnerships. Standing opposite the "
    "ascendant, it shows the kind of person one is drawn to and the relationship one forms with a "
    "spouse. Business partners, contracts, agreements and dealings with the public come under it "
    "too. Open enemies, rivals and lawsuits belong to this house as well. It describes how a "
    "person relates to others on an equal footing, and what he seeks in another that he lacks in "
    "himself. Venus placed here favours a happy marriage, whereas Saturn may delay it. Foreign "
    "trade and journeys made with a partner are also shown here.",
    // 7: 8th House
    "The eighth house is the house of death and regeneration, and of all that is hidden. It "
    "governs longevity, the manner of death, inheritance, legacies, insurance and money that comes "
    "through others, including the partner's wealth. Sexuality, the occult, research, mysteries "
    "and secret matters fall under its rule. It is also the house of deep psychological and "
    "spiritual transformation, of crises that change a person from within. Planets here may bring "
    "sudden losses or gains from unexpected sources, chronic illness or a gift for insight into "
    "hidden things. The native's attitude towards death and the afterlife is read from this house.",
    // 8: 9th House
    "The ninth house is the house of higher learning, philosophy and religion. It rules "
    "universities, law, publishing and long journeys to distant lands. Contact with foreign "
    "cultures and study abroad are linked with it. The beliefs, ideals and moral principles of the "
    "native are shown by it. In Indian astrology it is the house of fortune and of the father, and "
    "also of the guru or spiritual teacher. Jupiter, its natural ruler, brings luck, wisdom, a "
    "respected position and a good relationship with teachers and elders. Pilgrimage and the "
    "search for meaning in life belong here as well. Dreams and visions are sometimes read from it "
    "too.",
    // 9: 10th House
    "The tenth house is the highest point of the chart, the midheaven, and it is the house of "
    "career and public life. It rules profession, status, reputation, honour and authority. How a "
    "person is seen by the world, and what he achieves in it, are shown here. This house also "
    "governs relations with employers, government and people in power, and in many traditions it "
    "stands for one of the parents. Planets placed here are very prominent in the life of the "
    "native. Saturn, the natural ruler, rewards patient effort with a high position, though a fall "
    "from grace may follow pride. The sign on its cusp is a strong pointer to a suitable "
    "profession.",
    // 10: 11th House
    "The eleventh house is the house of gains, friendships and hopes. It rules income from all "
    "sources, profits, rewards and the fulfilment of wishes. Friends, acquaintances, groups, clubs "
    "and societies come under it, as well as elder brothers and sisters. It is sometimes called "
    "the house of hopes and wishes. It shows the aims and ideals that a person pursues and the "
    "support he receives from others in reaching them. This house is also connected with social "
    "causes and with the good of the community. Uranus and Saturn, its rulers, link it with "
    "reform, with large organisations and with long cherished desires that may take years to come "
    "true.",
    // 11: 12th House
    "The twelfth house is the house of losses, expenses and endings, and in Indian astrology it is "
    "known as the 'Vyaysthana', the house of expenditure. It governs hospitals, prisons, "
    "monasteries and all places of seclusion. Secret enemies, self undoing, sleep, dreams and the "
    "subconscious mind are ruled by it. It is also the house of charity, sacrifice and spiritual "
    "liberation, and of life in foreign lands. Under Neptune and Jupiter, its rulers, it favours "
    "meditation, service to the needy and spiritual progress. Its darker side brings heavy "
    "expenses, confinement or hidden sorrows. The bed, the feet and the left eye are traditionally "
    "given to it.",
};

} // namespace quillane::modLearnAstrology::paragraphs
