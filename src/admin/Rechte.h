#pragma once

#include <QString>
#include <vector>

/// A right of a group: a Boolean field of Gruppen, its check box and its column in the grid of groups.
struct Recht {
    QString feld;
    QString kasten; ///< name of the check box
    QString aufschrift;
    QString kopf;       ///< of the column
    QString kopfZeilen; ///< the same in two lines
    int breite;
};

/// All rights, in the order of the check boxes and of the columns.
const std::vector<Recht>& rechte();
