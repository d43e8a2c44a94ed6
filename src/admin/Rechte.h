#pragma once

#include <QString>
#include <vector>

/// A right of a group: a Boolean field of the table Gruppen, with a check box and a column in the grid of
/// groups.
struct Recht {
    QString feld;
    QString kasten;     ///< name of the check box
    QString aufschrift; ///< caption of the check box
    QString kopf;       ///< heading of the column
    QString kopfZeilen; ///< the heading in two lines
    int breite;         ///< width of the column
};

/// All rights, in the order of the check boxes and of the columns.
const std::vector<Recht>& rechte();
