#include "demo/dictionary_rows.h"

namespace zkp::demo {

namespace {

constexpr unsigned kRatio = kAvg | kMin | kMax;

// A filter's keys are found by text, so no key may end in one that stands above it. The four ratios
// of one policy stand in the dictionary too; a loss-ratio report puts those of the group in their place.
constexpr Field kFields[] = {
    {"POLICYNO", "Αρ. Συμβολαίου", 1350, kLeft, 0, "POLICIES", "PolicyNo"},
    {"AGENTNAME", "Συνεργάτης", 2700, kLeft, kGroup, "AGENTS", "AgentName"},
    {"AGENCY", "Πρακτορείο", 2700, kLeft, kGroup, "AGENTS", "AgencyName"},
    {"BRANCH", "Υποκατάστημα", 1650, kLeft, kGroup, "BRANCHES", "BranchName"},
    {"REGION", "Περιφέρεια", 2250, kLeft, kGroup, "BRANCHES", "Region"},
    {"PRODUCTNAME", "Προϊόν", 2550, kLeft, kGroup, "PRODUCTS", "ProductName"},
    {"CATEGORY", "Κλάδος", 1500, kLeft, kGroup, "PRODUCTS", "Category"},
    {"POLICYYEAR", "Έτος", 750, kCentre, kGroup, "POLICIES", nullptr,
     "CAST(SUBSTR([POLICIES].[STARTDATE], 1, 4) AS INTEGER)"},
    {"POSON", "Παραγωγή", 1350, kRight, kTotal | kSum | kAvg, "POLICIES", "Poson"},
    {"POSONLR", "Αποζημιώσεις", 1350, kRight, kTotal | kSum | kAvg, "POLICIES", "PosonLR"},
    {"LR", "Παραγωγή / Ζημίες", 1200, kRight, kRatio, "POLICIES", nullptr,
     "CASE WHEN [POLICIES].[POSONLR] > 0 THEN [POLICIES].[POSON] * 1.0 / [POLICIES].[POSONLR] ELSE 0 END"},
    {"LR1", "Ζημίες / Παραγωγή", 1200, kRight, kRatio, "POLICIES", nullptr,
     "CASE WHEN [POLICIES].[POSON] > 0 THEN [POLICIES].[POSONLR] * 1.0 / [POLICIES].[POSON] ELSE 0 END"},
    {"LR2", "Αποτέλεσμα", 1350, kRight, kTotal | kSum, "POLICIES", nullptr,
     "([POLICIES].[POSON] - [POLICIES].[POSONLR])"},
    {"LR3", "Δείκτης Ζημιών %", 1200, kRight, kRatio, "POLICIES", nullptr,
     "CASE WHEN [POLICIES].[POSON] > 0 THEN [POLICIES].[POSONLR] * 100.0 / [POLICIES].[POSON] ELSE 100 END"},
};

} // namespace

std::span<const Field> ratioFields() {
    return kFields;
}

} // namespace zkp::demo
