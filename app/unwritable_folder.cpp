#include "app/unwritable_folder.h"

#include <QCoreApplication>
#include <QString>

#include <cerrno>
#include <string>

namespace quillon {

namespace {

bool IsForbidden(store::FileCalls& calls, const std::filesystem::path& folder)
{
    return calls.MayWrite(folder.c_str()) != 0 && (errno == EACCES || errno == EPERM || errno == EROFS);
}

} // namespace

void TellUnwritableFolder(store::FileCalls& calls, const store::ProgramFolder& folder, engine::Notifier& notifier)
{
    for (const std::filesystem::path& place : {folder.Path(), folder.AntennaFolder()}) {
        if (IsForbidden(calls, place)) {
            const QString text = QCoreApplication::translate(
                "UnwritableFolder", "The folder %1 cannot be written. Quillon computes and prints all the same, but it "
                                    "cannot save systems or antennas there.");
            const QString title = QCoreApplication::translate("UnwritableFolder", "Folder Cannot Be Written");
            notifier.Inform(text.arg(QString::fromStdString(place.string())).toStdString(), title.toStdString());
            return;
        }
    }
}

} // namespace quillon
