#include "demo/dictionary_rows.h"

namespace zkp::demo {

namespace {

constexpr Field kFields[] = {
    {"PRODUCTNAME", "Προϊόν", 2550, kLeft, kGroup, "QRYPRODUCT", "PRODUCTNAME"},
    {"CATEGORY", "Κλάδος", 1500, kLeft, kGroup, "QRYPRODUCT", "CATEGORY"},
    {"COVERCODE", "Κωδικός Κάλυψης", 1050, kCentre, kGroup, "QRYPRODUCT", "COVERCODE"},
    {"BRANCH", "Υποκατάστημα", 1650, kLeft, kGroup, "QRYPRODUCT", "BRANCH"},
    {"STARTDATE", "Έναρξη", 1200, kCentre, kCrossTab, "QRYPRODUCT", "STARTDATE"},
    {"PREMIUM", "Μικτά Ασφάλιστρα", 1350, kRight, kTotal | kSum | kAvg, "QRYPRODUCT", "PREMIUM"},
    {"SUMINSURED", "Ασφαλισμένο Κεφάλαιο", 1650, kRight, kTotal | kSum, "QRYPRODUCT", "SUMINSURED"},
};

} // namespace

std::span<const Field> productFields() {
    return kFields;
}

} // namespace zkp::demo
