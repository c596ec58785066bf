#include "core/events.h"

namespace zkp {

void Events::notify(const QString& key) {
    PropertyArgs args{key};
    Q_EMIT PropertyChanged(args);
}

bool Events::isRetrieveRowHeard() const {
    static const QMetaMethod retrieveRow = QMetaMethod::fromSignal(&Events::RetrieveRow);
    return isSignalConnected(retrieveRow);
}

} // namespace zkp
