#include "core/key_column.h"

#include "base/number.h"
#include "base/value.h"

#include <algorithm>

namespace zkp {

double KeyColumn::FindKeyColumn() const {
    const int count = std::min(surface_.Cols(), columns_.Count()); // a host may leave them different
    for (int c = 0; c < count; ++c)
        if (columns_.ofGridColumn(c).Index_Key)
            return c;
    return -1;
}

void KeyColumn::takeKey() {
    const int column = toInt32(FindKeyColumn());
    if (column < 0 || surface_.Row() >= surface_.Rows())
        return;
    key_.indkey = ToDouble(surface_.TextMatrix(surface_.Row(), column), surface_.locale()).toDouble();
}

} // namespace zkp
