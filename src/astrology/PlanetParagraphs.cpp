// Planet paragraphs: the native of each planet, and its faults or nature.
#include "astrology/AstrologyParagraphs.h"

namespace quillane::modLearnAstrology::paragraphs {

const std::array<std::string_view, 10> kPlanetPositive = {
    // 0: Sun
    "He can be good or evil depending upon the planets in configuration with him. The "
    "sun is considered to be the centre and the giver of all life; and as such, this "
    "very planet is considered to be the backbone of astrology. When this planet is "
    "strongly placed in a person's horoscope, he is generally well built, has strong and "
    "broad shoulders, piercing eyes and a broad and high forehead. The natives are "
    "basically strong willed, determinant, outspoken and skillful individuals.",
    // 1: Moon
    "The Moon rules the mind and the emotions. When it is well placed, the native is "
    "gentle, kind and sympathetic, with a round face, soft eyes and a pleasant smile. "
    "Such people are imaginative and have a good memory. They love their home and "
    "mother, and are fond of travel, especially by water. They are sensitive to the "
    "moods of others.",
    // 2: Jupiter
    "Jupiter is the greatest benefic among the planets. A person under its strong "
    "influence is usually tall and well built, with a broad chest and a dignified "
    "bearing. The natives are generous, wise, religious and just. They are respected in "
    "society and often become teachers, judges, advisers or priests. Good fortune "
    "follows them, and they are optimistic and cheerful. Such people have a deep respect "
    "for learning, law and tradition, and they love to share what they know with others. "
    "Jupiter also gives children, wealth and a long and healthy life when it is well "
    "placed.",
    // 3: Mercury
    "Mercury rules the intellect and speech. The native is quick, clever and witty, with "
    "a slim, active body and bright eyes. Such people learn easily and are good at "
    "writing, mathematics and trade. They are adaptable and youthful in manner, and they "
    "make good speakers, writers, teachers and merchants.",
    // 4: Venus
    "Venus is the planet of love and beauty. When it is strong, the native is handsome "
    "or beautiful, with fine features, a graceful figure and a sweet voice. Such people "
    "are charming, affectionate and fond of pleasure, comfort and the arts. They have "
    "refined taste in dress and decoration, and they are often gifted in music, painting "
    "or acting. They are popular and make friends easily.",
    // 5: Mars
    "Mars gives courage and strength. The native is usually of medium height, muscular "
    "and active, with a ruddy complexion and a sharp gaze. Such people are bold, "
    "energetic and quick to act. They make good soldiers, surgeons, engineers and "
    "athletes. They are frank and fearless and will fight for what they believe is right.",
    // 6: Saturn
    "Saturn is the planet of discipline and endurance. Its native is often thin and "
    "tall, with deep set eyes and a serious expression. Such people are patient, "
    "hardworking, careful and just. They succeed slowly but surely, and their success "
    "lasts. They are good at organising and managing, and they gain in wisdom with age.",
    // 7: Uranus
    "You are original and independent when Uranus is strong in your chart. You are drawn "
    "to science, invention, technology and astrology itself. You think far ahead of your "
    "time, you value freedom above everything else, and you have a gift for sudden "
    "flashes of insight.",
    // 8: Neptune
    "You are highly imaginative and intuitive when Neptune is prominent in your chart. "
    "You have a deep love of music, poetry, film and the sea. You are compassionate and "
    "idealistic, and you are drawn to spiritual matters and to helping those who suffer.",
    // 9: Pluto
    "You have great inner power and strength of will when Pluto is strong in your chart. "
    "You can transform yourself and rise again after any loss, and you have the gift for "
    "uncovering what is hidden.",
};

const std::array<std::string_view, 10> kPlanetNegative = {
    // 0: Sun
    "This is the parent of the solar system. It is the planet which is known to "
    "co-operate sympathetically with all the other planets of the solar system, except "
    "Saturn. It is temperately hot, dry and masculine. He can be good or evil depending "
    "upon the planets in configuration with him.",
    // 1: Moon
    "The Moon is cold, moist and feminine, and it is the fastest moving of all the "
    "heavenly bodies. When it is afflicted, the native is changeable, moody, restless "
    "and easily influenced by others. Such a person may suffer from worry and from "
    "disorders of the stomach.",
    // 2: Jupiter
    "Jupiter is hot, moist and masculine, and it is known as the greater fortune. When "
    "it is weak or afflicted, the native may be extravagant, conceited and careless, "
    "promising much and doing little. There may be trouble with the liver and from "
    "overeating.",
    // 3: Mercury
    "Mercury is neither masculine nor feminine and takes on the nature of the planets "
    "that it joins. When it is afflicted, the native may be nervous, restless and sly, "
    "given to lying, gossip or cheating. Such a person may talk too much and finish too "
    "little.",
    // 4: Venus
    "Venus is cold, moist and feminine, and it is known as the lesser fortune. When it "
    "is badly placed, the native may be lazy, vain and self indulgent, too fond of "
    "pleasure and luxury. There may be trouble in love and in marriage.",
    // 5: Mars
    "Mars is hot, dry and masculine, and it is known as the lesser malefic. When it is "
    "afflicted, the native may be rash, quarrelsome, cruel and violent. Such a person is "
    "prone to accidents, cuts, burns, fevers and inflammations.",
    // 6: Saturn
    "Saturn is cold, dry and masculine, and it is known as the greater malefic. When it "
    "is afflicted, it brings delays, losses, poverty and sorrow. The native may be "
    "gloomy, suspicious, miserly and lonely. It may cause chronic illness and trouble "
    "with the bones and teeth. It makes a person slow, fearful and too cautious, and it "
    "can bring heavy responsibilities at an early age. Saturn is the planet of karma: it "
    "gives back exactly what has been earned. Its periods are often remembered as the "
    "most testing years of life.",
    // 7: Uranus
    "Uranus is the first of the planets beyond Saturn, and it was discovered only in "
    "1781. Its effects are sudden and unexpected. When it is afflicted, it can make you "
    "eccentric, rebellious and erratic.",
    // 8: Neptune
    "Neptune is a slow moving planet whose influence works on whole generations as much "
    "as on individuals. When it is afflicted, it can make you vague, confused, deceptive "
    "or prone to escape through drink or drugs.",
    // 9: Pluto
    "Pluto is the slowest of the planets and rules what is hidden. When it is afflicted, "
    "it can make you ruthless, cruel, obsessive, jealous and hungry for power.",
};

} // namespace quillane::modLearnAstrology::paragraphs
