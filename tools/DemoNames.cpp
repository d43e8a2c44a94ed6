#include "DemoNames.h"

#include "DemoDice.h"

namespace DemoNames {

namespace {

constexpr const char16_t* surnames[] = {
    u"Ackermann", u"Adler",     u"Albrecht",  u"Arndt",    u"Bachmann",  u"Barth",    u"Becker",
    u"Behrens",   u"Bergmann",  u"Böhm",      u"Brandt",   u"Brückner",  u"Busch",    u"Dahlmann",
    u"Dietrich",  u"Ebert",     u"Eckhardt",  u"Engelke",  u"Falkner",   u"Fiedler",  u"Fischer",
    u"Franke",    u"Friedrich", u"Fröhlich",  u"Gebhardt", u"Geiger",    u"Götz",     u"Graf",
    u"Groß",      u"Günther",   u"Haase",     u"Hahn",     u"Hartmann",  u"Heinze",   u"Hensel",
    u"Herrmann",  u"Hoffmann",  u"Huber",     u"Jäger",    u"Jansen",    u"Jung",     u"Kaiser",
    u"Keller",    u"Kirchner",  u"Klein",     u"Köhler",   u"König",     u"Krämer",   u"Krause",
    u"Kröger",    u"Kühn",      u"Lange",     u"Lehmann",  u"Lindner",   u"Lorenz",   u"Ludwig",
    u"Maier",     u"Mertens",   u"Möller",    u"Müller",   u"Nagel",     u"Neumann",  u"Nowak",
    u"Otto",      u"Peters",    u"Pohl",      u"Preuß",    u"Reimann",   u"Richter",  u"Roth",
    u"Sander",    u"Schäfer",   u"Schilling", u"Schmidt",  u"Schröder",  u"Schubert", u"Schulze",
    u"Schütte",   u"Seidel",    u"Sommer",    u"Stahl",    u"Steinbach", u"Stöcker",  u"Thiel",
    u"Uhlig",     u"Vogel",     u"Voß",       u"Wagner",   u"Walther",   u"Weber",    u"Weidlich",
    u"Weiß",      u"Wendt",     u"Winkler",   u"Wolf",     u"Zander",    u"Ziegler",  u"Zimmermann",
};

constexpr const char16_t* olderMen[] = {
    u"Alfred",    u"Bernd",   u"Claus",  u"Dieter",     u"Erich",    u"Ernst",   u"Frank",
    u"Friedhelm", u"Gerhard", u"Günter", u"Hans",       u"Harald",   u"Heinz",   u"Helmut",
    u"Horst",     u"Jochen",  u"Jürgen", u"Karl-Heinz", u"Klaus",    u"Lothar",  u"Manfred",
    u"Norbert",   u"Peter",   u"Rainer", u"Reinhard",   u"Rolf",     u"Rüdiger", u"Uwe",
    u"Volker",    u"Walter",  u"Werner", u"Wilfried",   u"Wolfgang",
};
constexpr const char16_t* youngerMen[] = {
    u"Alexander", u"Andreas",  u"Benjamin", u"Björn",  u"Christian", u"Daniel",    u"Dennis",  u"Dirk",
    u"Fabian",    u"Florian",  u"Holger",   u"Ingo",   u"Jan",       u"Jens",      u"Jörg",    u"Kai",
    u"Lars",      u"Marco",    u"Mario",    u"Markus", u"Martin",    u"Matthias",  u"Michael", u"Mirko",
    u"Oliver",    u"Patrick",  u"Ralf",     u"Robert", u"Sascha",    u"Sebastian", u"Stefan",  u"Sven",
    u"Thomas",    u"Thorsten", u"Tobias",   u"Torben",
};
constexpr const char16_t* boys[] = {
    u"Ben",  u"Elias", u"Emil", u"Felix",  u"Finn", u"Henri", u"Jonas", u"Jannik", u"Lennard", u"Leon",
    u"Luca", u"Luis",  u"Max",  u"Moritz", u"Noah", u"Oskar", u"Paul",  u"Theo",   u"Tim",     u"Till",
};
constexpr const char16_t* olderWomen[] = {
    u"Bärbel", u"Brigitte", u"Christa", u"Elke",   u"Gisela", u"Hannelore", u"Heike",
    u"Helga",  u"Ingrid",   u"Karin",   u"Monika", u"Renate", u"Ursula",
};
constexpr const char16_t* youngerWomen[] = {
    u"Anja",  u"Anke",    u"Birgit", u"Claudia", u"Daniela", u"Jana",   u"Julia",
    u"Katja", u"Kerstin", u"Nadine", u"Nicole",  u"Sabine",  u"Sandra", u"Susanne",
};
constexpr const char16_t* girls[] = {u"Emma", u"Greta", u"Ida",   u"Johanna",
                                     u"Lea",  u"Lina",  u"Marie", u"Mia"};

constexpr const char16_t* streets[] = {
    u"Am Alten Wehr", u"Am Bootshaus",  u"An der Fischtreppe", u"Auenblick",   u"Bahnhofstraße",
    u"Birkenweg",     u"Brückenstraße", u"Dorfstraße",         u"Eichenallee", u"Erlengrund",
    u"Feldstraße",    u"Fährgasse",     u"Gartenweg",          u"Hauptstraße", u"Kirchgasse",
    u"Lindenstraße",  u"Mühlenweg",     u"Reiherstieg",        u"Schilfweg",   u"Schulstraße",
    u"Uferstraße",    u"Weidenwinkel",  u"Wiesengrund",        u"Ziegeleiweg",
};

constexpr Town towns[] = {
    {u"00815", u"Auenbrück"}, {u"00815", u"Auenbrück"},  {u"00815", u"Auenbrück"}, {u"00816", u"Leisetal"},
    {u"00817", u"Oberleise"}, {u"00821", u"Rohrdommel"}, {u"00823", u"Steinwehr"},
};

constexpr Bank banks[] = {
    {u"99900011", u"Auenbank eG"},
    {u"99900027", u"Sparkasse Leisetal"},
    {u"99900038", u"Genossenschaftsbank Steinwehr"},
};

constexpr Firm firmList[] = {
    {u"Lieferanten", u"Fischzucht Quellengrund GmbH", u"liefert Forellen, Bestellung bis Ende Januar"},
    {u"Lieferanten", u"Teichwirtschaft Karpfenhof", u"Karpfen und Schleien, Anlieferung frei Ufer"},
    {u"Lieferanten", u"Angelgeräte Wurfweit OHG", u"10 % Rabatt gegen Vorlage des Ausweises"},
    {u"Lieferanten", u"Bootsbau Spundwand", u""},
    {u"Lieferanten", u"Druckerei Letternkasten", u"druckt die Fanglisten und die Ausweise"},
    {u"Lieferanten", u"Pokale und Schilder Glanz", u""},
    {u"Behörden", u"Untere Fischereibehörde Leisetal", u"Fangstatistik bis 31. Januar"},
    {u"Behörden", u"Wasserverband Leise", u"Pegelstände und Mähtermine"},
    {u"Behörden", u"Untere Naturschutzbehörde", u"Schilfschnitt nur mit Genehmigung"},
    {u"Behörden", u"Gemeinde Auenbrück, Ordnungsamt", u""},
    {u"Behörden", u"Veterinäramt Leisetal", u""},
    {u"Presse", u"Auenbrücker Tageblatt", u"Redaktionsschluss mittwochs"},
    {u"Presse", u"Leisetal-Anzeiger", u""},
    {u"Presse", u"Radio Uferwelle", u"Veranstaltungshinweise zwei Wochen vorher"},
    {u"Nachbarvereine", u"Angelfreunde Oberleise e. V.", u"Austauschkarten für den Unterlauf"},
    {u"Nachbarvereine", u"Fischereiverein Steinwehr 1921 e. V.", u"gemeinsames Hegefischen im September"},
    {u"Nachbarvereine", u"Sportfischer Rohrdommel e. V.", u""},
    {u"Nachbarvereine", u"Anglerbund Leisetal e. V.", u"Dachverband"},
};

constexpr const char16_t* officeList[] = {
    u"1. Vorsitzender", u"2. Vorsitzender", u"Kassenwart", u"Schriftführer", u"Gewässerwart", u"Jugendwart",
};

} // namespace

const char16_t* surname(DemoDice& dice) { return dice.pick(surnames); }

const char16_t* givenName(DemoDice& dice, bool male, int born) {
    if (born < 1966) return male ? dice.pick(olderMen) : dice.pick(olderWomen);
    if (born < 2003) return male ? dice.pick(youngerMen) : dice.pick(youngerWomen);
    return male ? dice.pick(boys) : dice.pick(girls);
}

const char16_t* street(DemoDice& dice) { return dice.pick(streets); }
const Town& town(DemoDice& dice) { return dice.pick(towns); }
const Bank& bank(DemoDice& dice) { return dice.pick(banks); }
std::span<const Firm> firms() { return firmList; }
std::span<const char16_t* const> offices() { return officeList; }

} // namespace DemoNames
