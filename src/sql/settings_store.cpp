#include "sql/settings_store.h"

#include "ado/recordset.h"
#include "base/database_value.h"
#include "base/error.h"

namespace zkp {

namespace {

ado::RecordsetPtr openSetting(const QString& table, int key, int subKey,
                              const ado::ConnectionPtr& connection) {
    auto setting = std::make_shared<ado::Recordset>();
    const QString statement = QStringLiteral("SELECT GenValue FROM ") + table +
                              QStringLiteral(" where GenKey=") + QString::number(key) +
                              QStringLiteral(" and GenSubKey =") + QString::number(subKey);
    setting->Open(statement, connection, ado::adOpenDynamic, ado::adLockOptimistic);
    return setting;
}

} // namespace

QString SettingsStore::GETGeneral(int key, int subKey, QString& description) {
    try {
        const auto setting = openSetting(QStringLiteral("QRN_Main"), key, subKey, connection_);
        description = setting->Eof() ? QStringLiteral("NULL")
                                     : requiredText(setting->Collect(QStringLiteral("GenValue")));
        setting->Close();
        return description;
    } catch (const Error&) {
        return {};
    }
}

/// The select list names the value only; the two keys are written all the same.
bool SettingsStore::SETGeneral(int key, int subKey, const QString& description) {
    try {
        // The writer has always spelt the table in capitals.
        const auto setting = openSetting(QStringLiteral("QRN_MAIN"), key, subKey, connection_);
        if (setting->Eof())
            setting->AddNew();
        setting->setCollect(QStringLiteral("GenKey"), key);
        setting->setCollect(QStringLiteral("GenSubKey"), subKey);
        setting->setCollect(QStringLiteral("GenValue"), description);
        setting->Update();
        setting->Close();
        return true;
    } catch (const Error&) {
        return false;
    }
}

} // namespace zkp
