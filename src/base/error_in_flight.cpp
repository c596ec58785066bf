#include "base/error_in_flight.h"

namespace zkp {

Error errorInFlight() {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::exception& failure) {
        return Error(kErrInvalidCall, QString::fromUtf8(failure.what()));
    } catch (...) {
        return Error(kErrInvalidCall, QStringLiteral("Unexpected failure"));
    }
}

} // namespace zkp
