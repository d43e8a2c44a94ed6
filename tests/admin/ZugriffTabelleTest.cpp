#include "Benutzer.h"
#include "DataTable.h"
#include "Screens.h"
#include "Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool isMarked(DataTable& grid, int row) {
    grid.publish();
    return grid.selectionModel()->isRowSelected(row, QModelIndex());
}

TEST(GroupsGrid, KeepsTheMarkOfARowBelowTheCountOfUsersWhenItLosesTheFocus) {
    beginSession(QString());
    Benutzer& screen = the<Benutzer>();
    screen.tblBenutzer->appendRow({1, u"Admin"_s, u""_s, u"Gruppe"_s});
    for (const int gnr : {1, 2}) screen.tblZugriff->appendRow({gnr, u"Gruppe"_s});
    screen.tblZugriff->publish();
    for (const int row : {0, 1}) {
        screen.tblZugriff->setCurrentIndex(screen.tblZugriff->model()->index(row, 0));
        Q_EMIT screen.tblZugriff->OnGridLostFocus();
        EXPECT_EQ(isMarked(*screen.tblZugriff, row), row == 1);
    }
    unload<Benutzer>();
}

} // namespace
