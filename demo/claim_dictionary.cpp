#include "demo/dictionary_rows.h"

namespace zkp::demo {

namespace {

constexpr unsigned kAmount = kTotal | kSum | kAvg | kMin | kMax;

// A filter's keys are found by text, so no key may end in one that stands above it.
constexpr Field kFields[] = {
    {"CLAIMID", "Κωδικός", 900, kRight, kHidden, "CLAIMS", "ClaimID"},
    {"CLAIMNO", "Αρ. Ζημίας", 1350, kLeft, 0, "CLAIMS", "ClaimNo"},
    {"POLICYNO", "Αρ. Συμβολαίου", 1500, kLeft, 0, "CLAIMS", "PolicyNo"},
    {"OCCURREDON", "Ημ/νία Συμβάντος", 1650, kCentre, kMin | kMax | kCrossTab, "CLAIMS", "OccurredOn"},
    {"REPORTEDON", "Ημ/νία Αναγγελίας", 1650, kCentre, kMin | kMax | kCrossTab, "CLAIMS", "ReportedOn"},
    {"PAIDON", "Ημ/νία Πληρωμής", 1650, kCentre, kMin | kMax | kCrossTab, "CLAIMS", "PaidOn"},
    {"AGENTNAME", "Συνεργάτης", 2700, kLeft, kGroup, "AGENTS", "AgentName"},
    {"BRANCH", "Υποκατάστημα", 1650, kLeft, kGroup, "BRANCHES", "BranchName"},
    {"REGION", "Περιφέρεια", 2250, kLeft, kGroup, "BRANCHES", "Region"},
    {"PRODUCTNAME", "Προϊόν", 2550, kLeft, kGroup, "PRODUCTS", "ProductName"},
    {"CATEGORY", "Κλάδος", 1500, kLeft, kGroup, "PRODUCTS", "Category"},
    {"CUSTOMER", "Πελάτης", 2850, kLeft, kPrivate, "CUSTOMERS", "FullName"},
    {"CAUSE", "Αιτία", 1650, kLeft, kGroup, "CLAIMS", "Cause"},
    {"STATUS", "Κατάσταση", 1200, kLeft, kGroup, "CLAIMS", "Status"},
    {"INJURED", "Τραυματίες", 1200, kRight, kAmount, "CLAIMS", "Injured"},
    {"ESTIMATE", "Εκτίμηση", 1350, kRight, kAmount, "CLAIMS", "Estimate"},
    {"PAID", "Πληρωμές", 1350, kRight, kAmount, "CLAIMS", "Paid"},
    {"RESERVE", "Απόθεμα", 1350, kRight, kAmount, "CLAIMS", "Reserve"},
    {"INCURRED", "Συνολικό Κόστος", 1650, kRight, kTotal | kSum, "CLAIMS", nullptr,
     "([CLAIMS].[PAID] + [CLAIMS].[RESERVE])"},
    {"DELAYDAYS", "Ημέρες Αναγγελίας", 1800, kRight, kAvg | kMin | kMax, "CLAIMS", nullptr,
     "CAST(JULIANDAY([CLAIMS].[REPORTEDON]) - JULIANDAY([CLAIMS].[OCCURREDON]) AS INTEGER)"},
};

} // namespace

std::span<const Field> claimFields() {
    return kFields;
}

} // namespace zkp::demo
