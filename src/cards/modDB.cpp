#include "cards/modDB.h"

#include "common/Errors.h"

namespace quillane::modDB {

std::shared_ptr<Connection> cnCards;
std::shared_ptr<Recordset> rsCards;

std::string DatabasePath(const std::string& programDir) {
    return programDir + kPathSeparator + kDatabaseFile;
}

std::string ConnectionString(const std::string& databasePath) {
    return std::string("DRIVER=") + kDriver + ";" + "UID=;PWD=" + kPassword +
           ";DBQ=" + databasePath;
}

void OpenConnection(std::shared_ptr<Connection>& connection, const std::string& databasePath) {
    auto fresh = std::make_shared<Connection>();
    fresh->ConnectionString = ConnectionString(databasePath);
    fresh->CursorLocation = adUseClient;
    fresh->Open();
    connection = std::move(fresh);
}

void OpenRecordset(std::shared_ptr<Recordset>& recordSet,
                   const std::shared_ptr<Connection>& connection, const std::string& sqlText) {
    if (!connection || !connection->IsOpen())
        throw FatalError(connection ? connection->DatabasePath() : std::string(),
                         "The card database is not open.");
    // Client-side cursor: every row is read now; the keyset cursor type,
    // optimistic locks and text command are what the program asks for, and
    // a client-side row set gives exactly that.
    recordSet = std::make_shared<Recordset>(connection->Query(sqlText));
}

} // namespace quillane::modDB
