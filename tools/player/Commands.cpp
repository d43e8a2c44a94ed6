#include "Commands.h"

#include <QHash>

const PlayerCommand* findCommand(const QString& name) {
    static const QHash<QString, const PlayerCommand*> all = [] {
        QHash<QString, const PlayerCommand*> commands;
        for (const auto* list : {&settingCommands(), &actingCommands(), &printingCommands()}) {
            for (const PlayerCommand& command : *list)
                commands.insert(QString::fromUtf16(command.name), &command);
        }
        return commands;
    }();
    return all.value(name);
}
