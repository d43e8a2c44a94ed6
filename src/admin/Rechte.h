#pragma once

#include <QStringView>

/// A right of a group: a Boolean field of the table Gruppen, with a check box and a column in the grid of
/// groups.
struct Recht {
    QStringView feld;
    QStringView kasten;     ///< name of the check box
    QStringView aufschrift; ///< caption of the check box
    QStringView kopf;       ///< heading of the column
    QStringView kopfZeilen; ///< the heading in two lines
    int breite;             ///< width of the column
};

/// All rights, in the order of the check boxes and of the columns.
constexpr Recht rechte[] = {
    {u"Fangbuch", u"chkFBuch", u"Fangbuch", u"Fangbuch", u"Fang-\nbuch", 46},
    {u"Fangauswertung", u"chkFAusw", u"Fangauswertg.", u"Fangauswertg.", u"Fang-\nauswertg.", 60},
    {u"KontUebers", u"chkKontUebers", u"Kont.-Übers.", u"Kontakt-Übers.", u"Kontakt-\nÜbers.", 54},
    {u"KontListe", u"chkKontList", u"Kontaktliste", u"Kontakt-Liste", u"Kontakt-\nListe", 54},
    {u"Kontakt", u"chkKontakt", u"Kontakt", u"Kontakt", u"Kontakt", 52},
    {u"Arbeit", u"chkArbeit", u"ArbStd-Contr.", u"Arbeitscontrolling", u"Arbeits-\ncontrolling", 64},
    {u"Besatz", u"chkBesatz", u"Besatz.-Liste", u"Besatz.-Liste", u"Besatz.-\nListe", 54},
    {u"Basis", u"chkBasis", u"Basisdaten", u"Basisdaten", u"Basis-\ndaten", 46},
    {u"Benutzerverwaltung", u"chkBenutzer", u"Benutzer- && Zugriff", u"Benutzerverwltg.",
     u"Benutzer-\nverwltg.", 62},
    {u"System", u"chkSystem", u"Systempar.", u"Systempar.", u"System-\npar.", 54},
};
