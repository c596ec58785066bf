#include "demo/dictionary_rows.h"

namespace zkp::demo {

namespace {

constexpr unsigned kAmount = kTotal | kSum | kAvg | kMin | kMax;

// A filter's keys are found by text, so no key may end in one that stands above it.
constexpr Field kFields[] = {
    {"POLICYID", "Κωδικός", 900, kRight, kHidden, "POLICIES", "PolicyID"},
    {"POLICYNO", "Αρ. Συμβολαίου", 1600, kLeft, 0, "POLICIES", "PolicyNo"},
    {"ISSUEDATE", "Ημ/νία Έκδοσης", 1500, kCentre, kMin | kMax | kCrossTab, "POLICIES", "IssueDate"},
    {"STARTDATE", "Έναρξη", 1200, kCentre, kMin | kMax | kCrossTab, "POLICIES", "StartDate"},
    {"ENDDATE", "Λήξη", 1200, kCentre, kMin | kMax | kCrossTab, "POLICIES", "EndDate"},
    {"ENTEREDAT", "Καταχωρήθηκε", 1800, kCentre, 0, "POLICIES", "EnteredAt"},
    {"AGENTNAME", "Συνεργάτης", 2700, kLeft, kGroup, "AGENTS", "AgentName"},
    {"AGENCY", "Πρακτορείο", 2700, kLeft, kGroup, "AGENTS", "AgencyName"},
    {"AGENTCITY", "Πόλη Συνεργάτη", 1650, kLeft, kGroup, "AGENTS", "City"},
    {"HIREYEAR", "Έτος Συνεργασίας", 900, kCentre, kGroup | kMin | kMax, "AGENTS", nullptr,
     "CAST(SUBSTR([AGENTS].[HIREDON], 1, 4) AS INTEGER)"},
    {"BRANCH", "Υποκατάστημα", 1650, kLeft, kGroup, "BRANCHES", "BranchName"},
    {"REGION", "Περιφέρεια", 2250, kLeft, kGroup, "BRANCHES", "Region"},
    {"PRODUCTNAME", "Προϊόν", 2550, kLeft, kGroup, "PRODUCTS", "ProductName"},
    {"CATEGORY", "Κλάδος", 1500, kLeft, kGroup, "PRODUCTS", "Category"},
    {"CUSTOMER", "Πελάτης", 2850, kLeft, 0, "CUSTOMERS", "FullName"},
    {"CUSTOMERCITY", "Πόλη Πελάτη", 1650, kLeft, kGroup, "CUSTOMERS", "City"},
    {"TAXNO", "Α.Φ.Μ.", 1125, kCentre, kPrivate, "CUSTOMERS", "TaxNo"},
    {"PLATE", "Αρ. Κυκλοφορίας", 1550, kCentre, 0, "POLICIES", "Plate"},
    {"STATUS", "Κατάσταση", 1050, kLeft, kGroup, "POLICIES", "Status"},
    {"PAYWAY", "Τρόπος Πληρωμής", 1800, kLeft, kGroup, "POLICIES", "PayWay"},
    {"INSTALMENTS", "Δόσεις", 750, kRight, kGroup | kAvg | kMin | kMax, "POLICIES", "Instalments"},
    {"RENEWALS", "Ανανεώσεις", 1100, kRight, kAmount, "POLICIES", "Renewals"},
    {"ISPAID", "Εξοφλημένο", 900, kCentre, kGroup, "POLICIES", "IsPaid"},
    {"RATE", "Συντελεστής", 900, kRight, kAvg | kMin | kMax, "POLICIES", "Rate"},
    {"PREMIUM", "Μικτά Ασφάλιστρα", 1700, kRight, kAmount, "POLICIES", "PREMIUM"},
    {"NET", "Καθαρά Ασφάλιστρα", 1800, kRight, kAmount, "POLICIES", "Net"},
    {"TAX", "Φόρος", 1050, kRight, kTotal | kSum, "POLICIES", "Tax"},
    {"COMMISSION", "Προμήθεια", 1200, kRight, kAmount | kPrivate, "POLICIES", "Commission"},
    {"SUMINSURED", "Ασφαλισμένο Κεφάλαιο", 2100, kRight, kAmount, "POLICIES", "SumInsured"},
    {"RETAINED", "Έσοδο Εταιρείας", 1600, kRight, kTotal | kSum | kPrivate, "POLICIES", nullptr,
     "([POLICIES].[NET] - COALESCE([POLICIES].[COMMISSION], 0))"},
    {"RETURNED", "Επιστροφές", 1200, kRight, kTotal | kSum, nullptr, nullptr,
     "CASE WHEN [POLICIES].[PREMIUM] < 0 THEN [POLICIES].[PREMIUM] ELSE 0 END"},
    {"POLICYYEAR", "Έτος", 750, kCentre, kGroup, "POLICIES", nullptr,
     "CAST(SUBSTR([POLICIES].[STARTDATE], 1, 4) AS INTEGER)"},
    {"SIZECLASS", "Κλιμάκιο Ασφαλίστρου", 2050, kLeft, kGroup, nullptr, nullptr,
     "CASE WHEN [POLICIES].[PREMIUM] < 0 THEN 'Επιστροφή' WHEN [POLICIES].[PREMIUM] < 200 THEN 'Έως 200' "
     "WHEN [POLICIES].[PREMIUM] < 1000 THEN '200 έως 1000' ELSE 'Άνω των 1000' END"},
    {"REMARKS", "Παρατηρήσεις", 3000, kLeft, kUnset, "POLICIES", "Remarks"},
};

} // namespace

std::span<const Field> policyFields() {
    return kFields;
}

} // namespace zkp::demo
