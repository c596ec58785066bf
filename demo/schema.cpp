#include "demo/schema.h"

namespace zkp::demo {

// The five identity columns stand in the tables that head a report (POLICIES, CLAIMS) and in no table
// that is joined to one, so that a condition may name them without saying whose they are. The same
// goes for Poson and PosonLR.
const char* const kTables = R"sql(
CREATE TABLE BRANCHES (BranchID INTEGER PRIMARY KEY, BranchName TEXT, Region TEXT, Phone TEXT);
CREATE TABLE AGENTS (
    AgentID INTEGER PRIMARY KEY, AgentName TEXT, AgencyName TEXT, City TEXT, HiredOn DATE,
    Producer TEXT, Agency TEXT, Assistant TEXT, Unit TEXT, Manager TEXT);
CREATE TABLE PRODUCTS (ProductID INTEGER PRIMARY KEY, ProductName TEXT, Category TEXT, CoverCode TEXT);
CREATE TABLE CUSTOMERS (
    CustomerID INTEGER PRIMARY KEY, FullName TEXT, TaxNo TEXT, City TEXT, BirthDate DATE, Phone TEXT,
    Email TEXT);
CREATE TABLE POLICIES (
    PolicyID INTEGER PRIMARY KEY, PolicyNo TEXT, AgentID INTEGER, BranchID INTEGER, ProductID INTEGER,
    CustomerID INTEGER, IssueDate DATE, StartDate DATE, EndDate DATE, EnteredAt TIMESTAMP,
    Status TEXT, PayWay TEXT, Instalments SMALLINT, Renewals INTEGER, IsPaid BIT, Rate DOUBLE, Plate TEXT,
    Remarks TEXT, PREMIUM MONEY, Net MONEY, Tax MONEY, Commission MONEY, SumInsured MONEY, Poson MONEY,
    PosonLR MONEY, ProductIdentity TEXT, AgencyIdentity TEXT, AssistantIdentity TEXT, UnitIdentity TEXT,
    ManagerIdentity TEXT);
CREATE TABLE CLAIMS (
    ClaimID INTEGER PRIMARY KEY, ClaimNo TEXT, PolicyID INTEGER, PolicyNo TEXT, AgentID INTEGER,
    BranchID INTEGER, ProductID INTEGER, CustomerID INTEGER, OccurredOn DATE, ReportedOn DATE, PaidOn DATE,
    Cause TEXT, Status TEXT, Injured INTEGER, Estimate MONEY, Paid MONEY, Reserve MONEY,
    ProductIdentity TEXT, AgencyIdentity TEXT, AssistantIdentity TEXT, UnitIdentity TEXT,
    ManagerIdentity TEXT);

CREATE TABLE Reports (
    RecSource TEXT PRIMARY KEY, MasterTable TEXT, RKeyname TEXT, MasterFilter TEXT, Dictionary TEXT,
    Title TEXT);
CREATE TABLE QRN_Main (
    GenKey SMALLINT, GenSubKey SMALLINT, GenValue TEXT, PRIMARY KEY (GenKey, GenSubKey));
CREATE TABLE frms (lstCode INTEGER, ZKP_ BLOB);
CREATE TABLE frms2 (lstCode TEXT, ZKP_ BLOB, datein DATE);
CREATE TABLE SECUSERS (UserID TEXT PRIMARY KEY, FullName TEXT, Ierarxia TEXT, IerID TEXT);
CREATE TABLE procedures (name TEXT PRIMARY KEY, statement TEXT);
)sql";

const char* const kIndexes = R"sql(
CREATE INDEX POLICIES_AGENT ON POLICIES (AgentID);
CREATE INDEX POLICIES_BRANCH ON POLICIES (BranchID);
CREATE INDEX POLICIES_PRODUCT ON POLICIES (ProductID);
CREATE INDEX POLICIES_CUSTOMER ON POLICIES (CustomerID);
CREATE INDEX CLAIMS_POLICY ON CLAIMS (PolicyID);
CREATE INDEX CLAIMS_AGENT ON CLAIMS (AgentID);
CREATE INDEX CLAIMS_BRANCH ON CLAIMS (BranchID);
CREATE INDEX CLAIMS_PRODUCT ON CLAIMS (ProductID);
CREATE INDEX AGENTS_NAME ON AGENTS (AgentName);
CREATE INDEX BRANCHES_NAME ON BRANCHES (BranchName);
CREATE INDEX PRODUCTS_NAME ON PRODUCTS (ProductName);
CREATE INDEX frms_CODE ON frms (lstCode);
CREATE INDEX frms2_CODE ON frms2 (lstCode);
)sql";

const char* const kViews = R"sql(
CREATE VIEW POLICIESDATA AS SELECT
    P.PolicyID AS POLICYID, P.PolicyNo AS POLICYNO, P.IssueDate AS ISSUEDATE, P.StartDate AS STARTDATE,
    P.EndDate AS ENDDATE, P.EnteredAt AS ENTEREDAT, A.AgentName AS AGENTNAME, A.AgencyName AS AGENCY,
    A.City AS AGENTCITY, CAST(SUBSTR(A.HiredOn, 1, 4) AS INTEGER) AS HIREYEAR, B.BranchName AS BRANCH, B.Region AS REGION, R.ProductName AS PRODUCTNAME,
    R.Category AS CATEGORY, C.FullName AS CUSTOMER, C.City AS CUSTOMERCITY, C.TaxNo AS TAXNO,
    P.Plate AS PLATE, P.Status AS STATUS, P.PayWay AS PAYWAY, P.Instalments AS INSTALMENTS,
    P.Renewals AS RENEWALS, P.IsPaid AS ISPAID, P.Rate AS RATE, P.PREMIUM AS PREMIUM, P.Net AS NET,
    P.Tax AS TAX, P.Commission AS COMMISSION, P.SumInsured AS SUMINSURED, P.Remarks AS REMARKS,
    P.Net - COALESCE(P.Commission, 0) AS RETAINED,
    CASE WHEN P.PREMIUM < 0 THEN P.PREMIUM ELSE 0 END AS RETURNED,
    CAST(SUBSTR(P.StartDate, 1, 4) AS INTEGER) AS POLICYYEAR,
    CASE WHEN P.PREMIUM < 0 THEN 'Επιστροφή' WHEN P.PREMIUM < 200 THEN 'Έως 200'
         WHEN P.PREMIUM < 1000 THEN '200 έως 1000' ELSE 'Άνω των 1000' END AS SIZECLASS,
    P.ProductIdentity AS ProductIdentity, P.AgencyIdentity AS AgencyIdentity,
    P.AssistantIdentity AS AssistantIdentity, P.UnitIdentity AS UnitIdentity,
    P.ManagerIdentity AS ManagerIdentity
FROM POLICIES P
    LEFT JOIN AGENTS A ON P.AgentID = A.AgentID LEFT JOIN BRANCHES B ON P.BranchID = B.BranchID
    LEFT JOIN PRODUCTS R ON P.ProductID = R.ProductID LEFT JOIN CUSTOMERS C ON P.CustomerID = C.CustomerID;

CREATE VIEW CLAIMSDATA AS SELECT
    L.ClaimID AS CLAIMID, L.ClaimNo AS CLAIMNO, L.PolicyNo AS POLICYNO, L.OccurredOn AS OCCURREDON,
    L.ReportedOn AS REPORTEDON, L.PaidOn AS PAIDON, A.AgentName AS AGENTNAME, B.BranchName AS BRANCH,
    B.Region AS REGION, R.ProductName AS PRODUCTNAME, R.Category AS CATEGORY, C.FullName AS CUSTOMER,
    L.Cause AS CAUSE, L.Status AS STATUS, L.Injured AS INJURED, L.Estimate AS ESTIMATE, L.Paid AS PAID,
    L.Reserve AS RESERVE, L.Paid + L.Reserve AS INCURRED,
    CAST(JULIANDAY(L.ReportedOn) - JULIANDAY(L.OccurredOn) AS INTEGER) AS DELAYDAYS,
    L.ProductIdentity AS ProductIdentity, L.AgencyIdentity AS AgencyIdentity,
    L.AssistantIdentity AS AssistantIdentity, L.UnitIdentity AS UnitIdentity,
    L.ManagerIdentity AS ManagerIdentity
FROM CLAIMS L
    LEFT JOIN AGENTS A ON L.AgentID = A.AgentID LEFT JOIN BRANCHES B ON L.BranchID = B.BranchID
    LEFT JOIN PRODUCTS R ON L.ProductID = R.ProductID LEFT JOIN CUSTOMERS C ON L.CustomerID = C.CustomerID;

CREATE VIEW LOSSRATIODATA AS SELECT
    P.PolicyNo AS POLICYNO, A.AgentName AS AGENTNAME, A.AgencyName AS AGENCY, B.BranchName AS BRANCH,
    B.Region AS REGION, R.ProductName AS PRODUCTNAME, R.Category AS CATEGORY, P.Poson AS Poson,
    P.PosonLR AS PosonLR, CAST(SUBSTR(P.StartDate, 1, 4) AS INTEGER) AS POLICYYEAR,
    CASE WHEN P.PosonLR > 0 THEN P.Poson * 1.0 / P.PosonLR ELSE 0 END AS LR,
    CASE WHEN P.Poson > 0 THEN P.PosonLR * 1.0 / P.Poson ELSE 0 END AS LR1,
    P.Poson - P.PosonLR AS LR2,
    CASE WHEN P.Poson > 0 THEN P.PosonLR * 100.0 / P.Poson ELSE 100 END AS LR3,
    P.ProductIdentity AS ProductIdentity, P.AgencyIdentity AS AgencyIdentity,
    P.AssistantIdentity AS AssistantIdentity, P.UnitIdentity AS UnitIdentity,
    P.ManagerIdentity AS ManagerIdentity
FROM POLICIES P
    LEFT JOIN AGENTS A ON P.AgentID = A.AgentID LEFT JOIN BRANCHES B ON P.BranchID = B.BranchID
    LEFT JOIN PRODUCTS R ON P.ProductID = R.ProductID;

CREATE VIEW QRYPRODUCT AS SELECT
    R.ProductName AS PRODUCTNAME, R.Category AS CATEGORY, R.CoverCode AS COVERCODE, B.BranchName AS BRANCH,
    P.StartDate AS STARTDATE, P.PREMIUM AS PREMIUM, P.SumInsured AS SUMINSURED,
    P.ProductIdentity AS ProductIdentity, P.AgencyIdentity AS AgencyIdentity,
    P.AssistantIdentity AS AssistantIdentity, P.UnitIdentity AS UnitIdentity,
    P.ManagerIdentity AS ManagerIdentity
FROM POLICIES P
    JOIN PRODUCTS R ON P.ProductID = R.ProductID LEFT JOIN BRANCHES B ON P.BranchID = B.BranchID;

CREATE VIEW QRYProductNik AS SELECT
    PRODUCTNAME, CATEGORY, COVERCODE, BRANCH, STARTDATE, PREMIUM, SUMINSURED, ProductIdentity,
    AgencyIdentity, AssistantIdentity, UnitIdentity, ManagerIdentity
FROM QRYPRODUCT WHERE CATEGORY <> 'Ζωής';
)sql";

} // namespace zkp::demo
