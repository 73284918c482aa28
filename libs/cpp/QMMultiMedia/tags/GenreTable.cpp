#include "GenreTable.h"

#include "Literals.h"

namespace QMMultiMedia {

QStringList id3Genres()
{
    // In the order and spelling of the ID3v1 list with its first extension.
    return u"Blues|Classic Rock|Country|Dance|Disco|Funk|Grunge|Hip-Hop|Jazz|Metal|New Age|Oldies|"
           "Other|Pop|R&B|Rap|Reggae|Rock|Techno|Industrial|Alternative|Ska|Death Metal|Pranks|"
           "Soundtrack|Euro-Techno|Ambient|Trip-Hop|Vocal|Jazz+Funk|Fusion|Trance|Classical|"
           "Instrumental|Acid|House|Game|Sound Clip|Gospel|Noise|AlternRock|Bass|Soul|Punk|Space|"
           "Meditative|Instrumental Pop|Instrumental Rock|Ethnic|Gothic|Darkwave|Techno-Industrial|"
           "Electronic|Pop-Folk|Eurodance|Dream|Southern Rock|Comedy|Cult|Gangsta|Top 40|"
           "Christian Rap|Pop/Funk|Jungle|Native American|Cabaret|New Wave|Psychadelic|Rave|"
           "Showtunes|Trailer|Lo-Fi|Tribal|Acid Punk|Acid Jazz|Polka|Retro|Musical|Rock & Roll|"
           "Hard Rock|Folk|Folk-Rock|National Folk|Swing|Fast Fusion|Bebob|Latin|Revival|Celtic|"
           "Bluegrass|Avantgarde|Gothic Rock|Progressive Rock|Psychedelic Rock|Symphonic Rock|"
           "Slow Rock|Big Band|Chorus|Easy Listening|Acoustic|Humour|Speech|Chanson|Opera|"
           "Chamber Music|Sonata|Symphony|Booty Bass|Primus|Porn Groove|Satire|Slow Jam|Club|Tango|"
           "Samba|Folklore|Ballad|Power Ballad|Rhythmic Soul|Freestyle|Duet|Punk Rock|Drum Solo|"
           "A Capella|Euro-House|Dance Hall"_qs.split(QLatin1Char('|'));
}

QStringList videoGenres()
{
    return {u"Drama"_qs, u"Animation"_qs, u"Action & Adventure"_qs, u"Classic"_qs, u"Kids"_qs,
        u"Nonfiction"_qs, u"Reality TV"_qs, u"Sci-Fi & Fantasy"_qs, u"Sports"_qs, u"Teens"_qs,
        u"Latino TV"_qs};
}

}
