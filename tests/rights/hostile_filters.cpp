#include "rights/hostile_filters.h"

namespace zkp::rights {

namespace {

// What stands behind a filter is joined to it with "and", which binds closer than "or".
const char* const kAlternatives[] = {
    "1=1 or 1=1",
    "0=0 or 0=0",
    "1=1 or",
    "or 1=1",
    "or",
    "and 1=1 or 1=1",
    "1=1 or 1=1 or",
    "BRANCH='x' or 1=1",
    "BRANCH='x' OR NOT BRANCH='x'",
    "BRANCH is null or BRANCH is not null",
    "not (1=0)",
    "not 1=0 or not 1=0",
    "1",
    "1 or 0",
    "true",
    "TRUE or TRUE",
    "true) or (true",
    "1=1 || 1=1",
    "1=1 or 1=1 and 1=1",
    "case when 1=1 then 1 else 0 end",
    "case when 1=1 then 1",
    "1=1 or case when 1=1",
    "coalesce(1,1)=1 or 1=1",
    "ProductIdentity='P0005'",
    "ProductIdentity<>'' or UnitIdentity<>''",
    "ProductIdentity like '%' or AgencyIdentity like '%'",
    "1=1 or ProductIdentity is not null or ProductIdentity",
    "BRANCH between 'A' and 'Z' or BRANCH between",
    "0=0 or BRANCH in ('x')",
    "BRANCH like '%' or BRANCH like '%' escape",
};

const char* const kBrackets[] = {
    ") or (",
    "(",
    ")",
    "()",
    ")(",
    "1=1) or (1=1",
    "1=1)) or ((1=1",
    "(1=1) or (1=1)",
    "((1=1)) or ((((1=1))))",
    "(1=1)) or ((1=1)",
    "((1=1) or (1=1",
    "1=1) or 1=1 or (1=0",
    "1=1 or (1=1",
    "1=1) or (1=1) or (1=1",
    "BRANCH=')' or 1=1",
    "BRANCH=')') or (1=1",
    "BRANCH='(' or 1=1) or (1=1",
    "[BRANCH]=') or (1=1'",
    "1 in (1) or (1) in (1",
    "coalesce(1) or (1=1",
    "1=1) group by (1",
    "1=1) order by (1",
    "1=1) limit (1000",
};

const char* const kQuotes[] = {
    "x' or '1'='1",
    "' or ''='",
    "'",
    "''",
    "'''",
    "\"",
    "BRANCH='",
    "BRANCH='x",
    "BRANCH='x''",
    "BRANCH='x' or 1=1 or BRANCH='",
    "BRANCH='x'' or 1=1 or ''x",
    "BRANCH='\\') or 1=1 or (BRANCH='\\'",
    "BRANCH='x\\'' or 1=1 or BRANCH='",
    "BRANCH=\"') or 1=1 or ('\"",
    "BRANCH=\"x\\\") or 1=1 or (\\\"\"",
    "BRANCH=`') or 1=1 or ('`",
    "BRANCH=`x` or 1=1",
    "BRANCH=$$') or 1=1 or ('$$",
    "BRANCH=$x$'$x$ or 1=1 or 'x'='",
    "BRANCH=q'!x'!') or 1=1 or ('x'",
    "BRANCH=Nq'[x']') or 1=1 or ('x'",
    "BRANCH=E'\\') or 1=1 or (\\''",
    "BRANCH=x'41' or 1=1 or x'",
    "BRANCH=N'x' or 1=1 or N'",
};

const char* const kNames[] = {
    "[BRANCH",
    "BRANCH]",
    "[BRANCH]]) or ([BRANCH]",
    "[a)] or 1=1 or [(b]",
    "[x] = 1) or 1=1 or ([x] = 1",
    "]) or ([",
    "[] or 1=1 or []",
    "[[BRANCH]] or 1=1",
    "[BRANCH']=' or 1=1 or [x]='",
    "[BRANCH\"]=\" or 1=1 or [x]=\"",
    "BRANCH[') or 1=1 or ('] is null",
    "BRANCH['] = ' is null]) or (1=1 or D[' or C[']",
    "array['] = ') or (1=1' or array[']",
    "\"BRANCH\"='x' or 1=1 or \"",
};

const char* const kComments[] = {
    "1=1 --",
    "1=1 -- )",
    "1=1) --",
    "1=1)--",
    "--",
    "1=1 /*",
    "1=1 /* */ or 1=1",
    "1=1) or 1=1 /*",
    "1=1 */ or 1=1 /*",
    "/**/1=1 or 1=1",
    "1=1 /*! or 1=1 */",
    "1=1) /*!50000 or (1=1 */",
    "1=1 /*M! or 1=1 */",
    "1=1 #",
    "1=1) #",
    "1=1 or 1=1--BRANCH='x'",
    "BRANCH='--' or 1=1 --",
    "BRANCH='/*' or 1=1 or '*/'='x' --",
    "[BRANCH]--",
    "1=1 --\nor 1=1",
};

const char* const kStatements[] = {
    "1=1;",
    ";",
    "; drop table POLICIES",
    "1=1; drop table POLICIES",
    "1=1; drop table POLICIES --",
    "1=1); drop table POLICIES; select (1",
    "1=1; delete from POLICIES; select 1",
    "1=1; update POLICIES set ProductIdentity='P0001'",
    "1=1); insert into SECUSERS values ('P0001','7',''); (",
    "1=1; select * from POLICIES",
    "1=1; attach ':memory:' as x",
    "1=1; pragma writable_schema=1",
    "BRANCH='x';drop view POLICIESDATA",
    "drop table POLICIES",
    "1=1 drop table POLICIES",
};

const char* const kSubselects[] = {
    "exists (select 1 from POLICIES)",
    "EXISTS(SELECT 1)",
    "not exists (select 1 from POLICIES where 1=0) or 1=1",
    "1 in (select 1)",
    "1 in (select 1 from POLICIES) or 1=1",
    "POLICYNO in (select POLICYNO from POLICIES)",
    "POLICYNO in (SeLeCt PolicyNo from POLICIES) or 1=1",
    "(select count(*) from POLICIES) > 0",
    "(select 1)",
    "((select 1)) or 1=1",
    "BRANCH = (select max(BranchName) from BRANCHES)",
    "1 in (values (1)) or 1=1",
    "1 = (values (1))",
    "1 in (with x as (select 1) select * from x)",
    "POLICYNO in POLICIES",
    "'x' in frms2 or 1=1",
    "1 not in [frms]",
    "1 in \"frms\"",
    "1 in json_each('[1]') or 1=1",
    "1 = any (table frms)",
    "(\nselect\n1\n)=1",
    "1=1 and (select ProductIdentity from POLICIES limit 1) <> ''",
    "case when exists(select 1) then 1 else 1 end = 1 or 1=1",
};

const char* const kUnions[] = {
    "1=1 union select * from POLICIES",
    "1=1 union all select * from POLICIESDATA",
    "1=1) union select * from POLICIES where (1=1",
    "1=1) union all select POLICYNO, BRANCH, PREMIUM from POLICIESDATA where (1=1",
    "1=1 UNION SELECT 1,2,3",
    "1=0) union select 1,2,3 where (1=1",
    "1=1 intersect select 1",
    "1=1 except select 1",
    "1=1) except select * from POLICIES where (1=0",
    "2union(select 1)",
};

// Keys are replaced within constants and names too, by expressions with quotes and brackets.
const char* const kKeysInConstants[] = {
    "PLATE=' SIZECLASS ' or PLATE=') or 1=1 or ('",
    "PLATE='SIZECLASS=' or 1=1",
    "[ RETAINED ' ]=1 or PLATE=') or (1=1'",
    "[ SIZECLASS ' ]=1 or PLATE=') or (1=1'",
    "PLATE='(RETAINED)' or 1=1",
    "CUSTOMER=' TRAP ' or 1=1",
    "CUSTOMER=' TRAP ) or (1=1 '",
    "CUSTOMER='TRAP=' or CUSTOMER=') or (1=1'",
    "CUSTOMER='TRAP= ) or 1=1 or ( TRAP='",
    "CUSTOMER='(TRAP)' or 1=1",
    "CUSTOMER=\" TRAP \" or 1=1",
    "[ TRAP ]=1 or 1=1",
    "[ BRANCH or 1=1) or ([x]=1",
    "[ BRANCH and exists(select 1 from POLICIES) and [x]=1",
    "CUSTOMER=' BRANCH ' or 1=1",
    "TRAP=')' or TRAP='('",
    "TRAP=1) or (TRAP=1",
};

// A load leaves a report's standing condition out where a host's filter holds its text.
const char* const kStandingCondition[] = {
    "STATUS<>'Άκυρη'",
    "1=1 or STATUS<>'Άκυρη'",
    "STATUS='Άκυρη' or STATUS<>'Άκυρη'",
    "STATUS<>'Άκυρη' or 1=1",
    "(STATUS<>'Άκυρη') and 1=1 or 1=1",
    "(STATUS<>'ΆΚΥΡΗ') and ( 1=1 ) or ( 1=1 )",
    "'STATUS<>''Άκυρη''' <> '' or 1=1",
    "[STATUS<>'Άκυρη']=1 or 1=1",
    "STATUS<>'Άκυρη' and 1=0 or STATUS='Άκυρη'",
};

const char* const kGreek[] = {
    "ΥΠΟΚΑΤΑΣΤΗΜΑ='Βόλος' ή 1=1", "BRANCH='Βόλος' or 'ά'='ά'", "BRANCH='Βόλος’ or 1=1 or ’x'='x'",
    "BRANCH=‘Βόλος’ or 1=1",      "BRANCH=«Βόλος» or 1=1",     "1=1；drop table POLICIES",
    "1 in (ſelect 1) or 1=1",     "1=1 unıon ſelect 1",        "BRANCH='Βόλος' or（1=1）",
};

template <std::size_t Count>
void add(std::vector<HostileFilter>& all, const char* kind, const char* const (&filters)[Count]) {
    for (const char* filter : filters)
        all.push_back({kind, QString::fromUtf8(filter)});
}

void addControlCharacters(std::vector<HostileFilter>& all) {
    for (const char16_t sign : {u'\0', u'\u0001', u'\u001b', u'\u007f', u'\u0085', u'\u200b'})
        all.push_back({"control characters", QStringLiteral("1=1 or 1=1%1").arg(QChar(sign))});
    all.push_back({"control characters", QStringLiteral("1=1") + QChar(u'\0') + u')'});
    all.push_back(
        {"control characters", QStringLiteral("BRANCH='x") + QChar(u'\0') + QStringLiteral("' or 1=1")});
    all.push_back({"control characters", QStringLiteral("sel\u200bect 1 or 1=1")});
}

void addLongOnes(std::vector<HostileFilter>& all) {
    all.push_back({"very long", QStringLiteral("1=0 or ").repeated(100) + QStringLiteral("1=1")});
    all.push_back({"very long", QStringLiteral("(").repeated(5'000) + QStringLiteral("1=1")});
    all.push_back({"very long", QStringLiteral(")").repeated(5'000)});
    all.push_back({"very long",
                   QStringLiteral("1=1)") + QStringLiteral(" ").repeated(5'000) + QStringLiteral("or (1=1")});
    all.push_back({"very long", QStringLiteral("BRANCH='") + QStringLiteral("''").repeated(1'000) +
                                    QStringLiteral("' or 1=1")});
    all.push_back({"very long", QStringLiteral("(").repeated(80) + QStringLiteral("1=1 or 1=1") +
                                    QStringLiteral(")").repeated(80)});
    all.push_back({"very long", QStringLiteral("BRANCH='") + QStringLiteral("Ω").repeated(5'000)});
}

std::vector<HostileFilter> makeAll() {
    std::vector<HostileFilter> all;
    add(all, "or and not", kAlternatives);
    add(all, "brackets", kBrackets);
    add(all, "quotes", kQuotes);
    add(all, "names", kNames);
    add(all, "comments", kComments);
    add(all, "second statements", kStatements);
    add(all, "subselects", kSubselects);
    add(all, "unions", kUnions);
    add(all, "keys in constants", kKeysInConstants);
    add(all, "standing condition", kStandingCondition);
    add(all, "Greek", kGreek);
    addControlCharacters(all);
    addLongOnes(all);
    return all;
}

} // namespace

const std::vector<HostileFilter>& hostileFilters() {
    static const std::vector<HostileFilter> all = makeAll();
    return all;
}

} // namespace zkp::rights
