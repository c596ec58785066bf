#pragma once

namespace zkp::ado {

enum CursorTypeEnum { adOpenUnspecified = -1, adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum LockTypeEnum { adLockUnspecified = -1, adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3, adLockBatchOptimistic = 4 };
enum CommandTypeEnum { adCmdUnspecified = -1, adCmdText = 1, adCmdTable = 2, adCmdStoredProc = 4, adCmdUnknown = 8 };
enum ObjectStateEnum { adStateClosed = 0, adStateOpen = 1 };
enum ConnectModeEnum { adModeUnknown = 0, adModeRead = 1, adModeWrite = 2, adModeReadWrite = 3 };
enum SchemaEnum { adSchemaColumns = 4, adSchemaTables = 20, adSchemaViews = 23 };

/// `Field::Type`.
enum DataTypeEnum {
    adSmallInt = 2,
    adInteger = 3,
    adDouble = 5,
    adCurrency = 6,
    adBoolean = 11,
    adBigInt = 20,
    adDBDate = 133,
    adDBTimeStamp = 135,
    adVarChar = 200,
    adVarWChar = 202,
    adLongVarBinary = 205,
};

} // namespace zkp::ado
