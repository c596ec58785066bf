#include "sql_server_grammar.h"

#include "base/scope_guard.h"
#include "base/text.h"

#include <algorithm>

namespace zkp::sqlcases {

using namespace Qt::StringLiterals;
using ado::dialect::Token;
using ado::dialect::TokenKind;

namespace {

const Token kEnd{TokenKind::Sign, u""};

bool isReserved(const Token& token) {
    static const QStringList words{
        u"SELECT"_s, u"FROM"_s,  u"WHERE"_s, u"GROUP"_s, u"BY"_s,     u"ORDER"_s,   u"UNION"_s,    u"LEFT"_s,
        u"RIGHT"_s,  u"INNER"_s, u"JOIN"_s,  u"ON"_s,    u"AND"_s,    u"OR"_s,      u"NOT"_s,      u"AS"_s,
        u"CASE"_s,   u"WHEN"_s,  u"THEN"_s,  u"ELSE"_s,  u"END"_s,    u"IN"_s,      u"IS"_s,       u"NULL"_s,
        u"LIKE"_s,   u"TOP"_s,   u"ASC"_s,   u"DESC"_s,  u"HAVING"_s, u"BETWEEN"_s, u"DISTINCT"_s, u"EXEC"_s};
    return words.contains(token.text.toString().toUpper());
}

} // namespace

SqlServerGrammar::SqlServerGrammar(const QString& statement)
    : tokens_(ado::dialect::tokenize(statement, ado::dialect::Dialect::SqlServer)) {
    std::erase_if(tokens_, [](const Token& token) { return token.kind == TokenKind::Space; });
}

void SqlServerGrammar::check(const QString& statement) {
    SqlServerGrammar grammar(statement);
    if (grammar.isWord(u"exec"))
        grammar.exec();
    else
        grammar.select();
    if (!grammar.ends())
        refuse(u"nothing may stand at '%1'"_s.arg(grammar.now().text.toString()));
}

const Token& SqlServerGrammar::now() const {
    return ends() ? kEnd : tokens_[at_];
}

bool SqlServerGrammar::takeWord(QStringView word) {
    const bool there = isWord(word);
    at_ += there;
    return there;
}
bool SqlServerGrammar::takeSign(QStringView sign) {
    const bool there = now().isSign(sign) && !ends();
    at_ += there;
    return there;
}
void SqlServerGrammar::needWord(const char* word) {
    if (!takeWord(QString::fromLatin1(word)))
        refuse(u"'%1' instead of %2"_s.arg(now().text, QString::fromLatin1(word)));
}
void SqlServerGrammar::needSign(const char* sign) {
    if (!takeSign(QString::fromLatin1(sign)))
        refuse(u"'%1' instead of '%2'"_s.arg(now().text, QString::fromLatin1(sign)));
}

bool SqlServerGrammar::isName() const {
    return now().kind == TokenKind::Name || (now().kind == TokenKind::Word && !isReserved(now()));
}

QString SqlServerGrammar::name() {
    if (!isName())
        refuse(u"'%1' instead of a name"_s.arg(now().text.toString()));
    if (now().text.startsWith(u'`'))
        refuse(u"a name in signs that it does not know"_s);
    const QString name = nameKey(nameOf(tokens_[at_++]));
    if (name.isEmpty())
        refuse(u"a name without letters"_s);
    return name;
}

QString SqlServerGrammar::columnName() {
    QString text = name();
    while (takeSign(u"."))
        text += u'.' + name();
    return text;
}

QString SqlServerGrammar::textSince(std::size_t start) const {
    QString text;
    for (std::size_t i = start; i < at_; ++i)
        text += tokens_[i].kind == TokenKind::Name ? nameKey(nameOf(tokens_[i]))
                                                   : nameKey(tokens_[i].text.toString());
    return text;
}

void SqlServerGrammar::exec() {
    needWord("exec");
    columnName();
    if (ends())
        return;
    do {
        if (now().kind != TokenKind::Text && now().kind != TokenKind::Number && !isWord(u"null"))
            refuse(u"'%1' instead of a constant"_s.arg(now().text.toString()));
        ++at_;
    } while (takeSign(u","));
}

void SqlServerGrammar::select() {
    const ScopeGuard outer([this, columns = columns_, aggregate = aggregate_, in = inAggregate_] {
        columns_ = columns;
        aggregate_ = aggregate;
        inAggregate_ = in;
    });
    inAggregate_ = false;
    needWord("SELECT");
    const bool distinct = takeWord(u"distinct");
    if (takeWord(u"top") && tokens_[at_++].kind != TokenKind::Number)
        refuse(u"TOP without a number"_s);
    QList<Item> list;
    items(list);
    if (takeWord(u"from"))
        from();
    if (takeWord(u"where"))
        condition();
    groupBy(list);
    orderBy(list, distinct);
}

void SqlServerGrammar::items(QList<Item>& list) {
    do {
        list << item();
    } while (takeSign(u","));
}

SqlServerGrammar::Item SqlServerGrammar::item() {
    if (takeSign(u"*"))
        return {u"*"_s, {}, {}, false};
    columns_.clear();
    aggregate_ = false;
    const std::size_t start = at_;
    expression();
    Item read{textSince(start), {}, columns_, aggregate_};
    read.alias = alias();
    return read;
}

QString SqlServerGrammar::alias() {
    return takeWord(u"as") || isName() ? name() : QString();
}

void SqlServerGrammar::from() {
    QStringList names;
    do {
        joined(names);
    } while (takeSign(u","));
    if (names.removeDuplicates() > 0)
        refuse(u"a table that is named twice"_s);
}

void SqlServerGrammar::joined(QStringList& names) {
    table(names);
    for (;;) {
        const bool outer = takeWord(u"left") || takeWord(u"right") || takeWord(u"inner");
        if (!outer && !isWord(u"join"))
            return;
        needWord("JOIN");
        table(names);
        needWord("ON");
        condition();
    }
}

void SqlServerGrammar::table(QStringList& names) {
    if (!takeSign(u"(")) {
        const QString text = columnName();
        const QString other = alias();
        names << (other.isEmpty() ? text : other);
        return;
    }
    if (isWord(u"select")) {
        select();
        needSign(")");
        takeWord(u"as");
        names << name();
        return;
    }
    const auto before = names.size();
    joined(names);
    needSign(")");
    if (names.size() == before + 1)
        refuse(u"brackets around a single table"_s);
}

void SqlServerGrammar::groupBy(const QList<Item>& list) {
    const bool grouped = takeWord(u"group");
    QStringList factors;
    if (grouped) {
        needWord("BY");
        do {
            columns_.clear();
            const std::size_t start = at_;
            expression();
            if (columns_.isEmpty())
                refuse(u"a group by no column"_s);
            factors << textSince(start);
        } while (takeSign(u","));
    }
    const bool aggregates = std::any_of(list.begin(), list.end(), [](const Item& i) { return i.aggregate; });
    if (!grouped && !aggregates)
        return;
    for (const Item& one : list) {
        const bool all = std::all_of(one.columns.begin(), one.columns.end(),
                                     [&](const QString& column) { return factors.contains(column); });
        if (!factors.contains(one.text) && (!all || one.text == u"*"))
            refuse(u"%1 is neither grouped nor summed"_s.arg(one.text));
    }
}

void SqlServerGrammar::orderBy(const QList<Item>& list, bool distinct) {
    if (!takeWord(u"order"))
        return;
    needWord("BY");
    const bool whole = std::any_of(list.begin(), list.end(), [](const Item& i) { return i.text == u"*"; });
    do {
        const std::size_t start = at_;
        expression();
        const QString text = textSince(start);
        bool isPlace = false;
        const qlonglong place = text.toLongLong(&isPlace);
        if (isPlace && !whole && (place < 1 || place > list.size()))
            refuse(u"an order by item %1 of %2"_s.arg(place).arg(list.size()));
        const bool selected = std::any_of(list.begin(), list.end(), [&](const Item& i) {
            return i.text == text || i.alias == text || i.text.section(u'.', -1) == text;
        });
        if (distinct && !isPlace && !whole && !selected)
            refuse(u"an order by %1, which DISTINCT does not select"_s.arg(text));
        if (!takeWord(u"asc"))
            takeWord(u"desc");
    } while (takeSign(u","));
}

} // namespace zkp::sqlcases
