#pragma once

#include "DataTable.h"
#include "KontaktUebers.h"
#include "OpenFolder.h"
#include "ProgramFolder.h"
#include "Screens.h"
#include "Session.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// A program folder, and the part of the contact overview that the serial letter reads.
class Club {
public:
    Club() {
        makeProgramFolder(folder.path(), 2026, false);
        beginSession(folder.path());
        session().AktDatenbank = openFolder(folder.path());
        overview().setColumns({{u"kategonr"_s, 0}, {QString(), 0}, {u"kategorie"_s, 200}});
        overview().setChildColumns({{u"Kontakt.-Nr"_s, 80}}, 2);
    }
    ~Club() {
        unload<KontaktUebers>();
        session().AktDatenbank.Close();
    }

    static DataTable& overview() { return *the<KontaktUebers>().tblKUebers; }

    QTemporaryDir folder;
};
