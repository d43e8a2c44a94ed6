#pragma once

#include "DataTable.h"
#include "KontaktUebers.h"
#include "OpenFolder.h"
#include "ProgramFolder.h"
#include "Screens.h"
#include "Session.h"

#include <QTemporaryDir>

/// A program folder, and the part of the contact overview that the serial letter reads.
class Club {
public:
    Club() {
        makeProgramFolder(folder.path(), 2026, false);
        beginSession(folder.path());
        session().AktDatenbank = openFolder(folder.path());
        overview().setColumns({{u"kategonr"_qs, 0}, {QString(), 0}, {u"kategorie"_qs, 200}});
        overview().setChildColumns({{u"Kontakt.-Nr"_qs, 80}}, 2);
    }
    ~Club() {
        unload<KontaktUebers>();
        session().AktDatenbank.Close();
    }

    static DataTable& overview() { return *screen<KontaktUebers>().tblKUebers; }

    QTemporaryDir folder;
};
