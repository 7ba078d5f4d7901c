#include "Sentence.h"

#include <algorithm>
#include <cctype>

namespace velkor::rulegen {

namespace {

using Kind = Sentence::Kind;

bool isSame(const Sentence& a, const Sentence& b) {
    return a.kind == b.kind && a.subject == b.subject && a.predicate == b.predicate &&
           std::ranges::equal(a.parts, b.parts, isSame);
}

bool isContrary(const Sentence& a, const Sentence& b) {
    return a.kind == Kind::Simple && b.kind == Kind::Simple && a.subject == b.subject && !a.opposite.empty() &&
           a.opposite == b.predicate;
}

/// "A OR (NOT A AND B)" is "A OR B", "A AND (NOT A OR B)" is "A AND B"; and nothing needs to be said twice.
bool absorb(Sentence& sentence) {
    auto& parts = sentence.parts;
    const Kind inner = sentence.kind == Kind::All ? Kind::Any : Kind::All;
    bool isChanged = false;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].kind == inner) {
            const auto gone = std::erase_if(parts[i].parts, [&](const Sentence& part) {
                return std::ranges::any_of(parts, [&](const Sentence& sibling) { return isContrary(sibling, part); });
            });
            isChanged |= gone > 0;
        }
        const auto again = std::remove_if(parts.begin() + static_cast<std::ptrdiff_t>(i) + 1, parts.end(),
                                          [&](const Sentence& other) { return isSame(other, parts[i]); });
        isChanged |= again != parts.end();
        parts.erase(again, parts.end());
    }
    return isChanged;
}

/// Lifts what a part joins in the same way, or alone.
bool flatten(Sentence& sentence) {
    std::vector<Sentence> flat;
    bool isChanged = false;
    for (Sentence& part : sentence.parts) {
        const bool isAlone = (part.kind == Kind::All || part.kind == Kind::Any) && part.parts.size() == 1;
        if (!isAlone && (part.kind != sentence.kind || sentence.kind == Kind::Either)) {
            flat.push_back(std::move(part));
            continue;
        }
        isChanged = true;
        for (Sentence& inner : part.parts) flat.push_back(std::move(inner));
    }
    sentence.parts = std::move(flat);
    return isChanged;
}

void simplify(Sentence& sentence) {
    for (Sentence& part : sentence.parts) simplify(part);
    if (sentence.kind != Kind::All && sentence.kind != Kind::Any) return;
    while (flatten(sentence) || absorb(sentence)) {
    }
    if (sentence.parts.size() == 1) sentence = Sentence(std::move(sentence.parts.front()));
}

std::string listed(const std::vector<std::string>& items, const std::string& word) {
    std::string result;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0) result += i + 1 == items.size() ? ' ' + word + ' ' : ", ";
        result += items[i];
    }
    return result;
}

/// Predicates that begin with the same verb name it once: "is above 0 and below 3".
std::string joinedPredicates(const std::vector<std::string>& predicates, const std::string& word) {
    const std::string verb = predicates.front().substr(0, predicates.front().find(' ') + 1);
    std::vector<std::string> rest;
    for (const std::string& predicate : predicates) {
        if (!predicate.starts_with(verb)) return listed(predicates, word);
        rest.push_back(predicate.substr(verb.size()));
    }
    return verb + listed(rest, word);
}

std::string inPlural(const std::string& predicate) {
    for (const auto& [one, many] : {std::pair{"is ", "are "}, {"has ", "have "}, {"does ", "do "}}) {
        const std::string_view singular = one;
        if (predicate.starts_with(singular)) return many + predicate.substr(singular.size());
    }
    return predicate == "holds" ? "hold" : predicate;
}

/// One statement of several whose subjects or predicates are the same; `isWhole` when all of them hold.
Sentence ofOneSubject(const std::vector<Sentence>& group, bool isWhole) {
    Sentence result = group.front();
    std::vector<std::string> predicates;
    for (const Sentence& each : group) predicates.push_back(each.predicate);
    result.predicate = joinedPredicates(predicates, isWhole ? "and" : "or");
    return result;
}

Sentence ofOnePredicate(const std::vector<Sentence>& group, bool isWhole) {
    Sentence result = group.front();
    std::vector<std::string> subjects;
    for (const Sentence& each : group) subjects.push_back(each.subject);
    constexpr std::string_view negation = "is not ";
    if (isWhole && result.predicate.starts_with(negation)) {
        result.subject = "neither " + listed(subjects, "nor");
        result.predicate = "is " + result.predicate.substr(negation.size());
        return result;
    }
    result.subject = listed(subjects, isWhole ? "and" : "or");
    if (isWhole) result.predicate = inPlural(result.predicate);
    return result;
}

/// What was joined by the other word would say something else once it is joined again.
bool isJoinable(const Sentence& sentence, Kind as) {
    return sentence.kind == Kind::Simple && (sentence.joinedAs == Kind::Simple || sentence.joinedAs == as);
}

/// Joins simple statements that agree in a member, each group where its first one stands.
template <class Join>
void joinEqual(Sentence& sentence, std::string Sentence::*member, Join join) {
    std::vector<std::vector<Sentence>> groups;
    for (Sentence& part : sentence.parts) {
        const auto same = std::ranges::find_if(groups, [&](const std::vector<Sentence>& group) {
            return isJoinable(part, sentence.kind) && isJoinable(group.front(), sentence.kind) &&
                   group.front().*member == part.*member;
        });
        if (same == groups.end())
            groups.push_back({std::move(part)});
        else
            same->push_back(std::move(part));
    }
    sentence.parts.clear();
    for (std::vector<Sentence>& group : groups) {
        if (group.size() == 1) {
            sentence.parts.push_back(std::move(group.front()));
            continue;
        }
        sentence.parts.push_back(join(group, sentence.kind == Kind::All));
        sentence.parts.back().joinedAs = sentence.kind;
    }
}

void merge(Sentence& sentence) {
    for (Sentence& part : sentence.parts) merge(part);
    if (sentence.kind != Kind::All && sentence.kind != Kind::Any) return;
    joinEqual(sentence, &Sentence::subject, ofOneSubject);
    joinEqual(sentence, &Sentence::predicate, ofOnePredicate);
    if (sentence.parts.size() == 1) sentence = Sentence(std::move(sentence.parts.front()));
}

/// `depth`: how many statements with parts stand around it, which decides how its own are held together.
std::string rendered(const Sentence& sentence, int depth) {
    switch (sentence.kind) {
    case Kind::Simple:
        return sentence.subject + ' ' + sentence.predicate;
    case Kind::Scope:
        return sentence.subject + ", " + rendered(sentence.parts.front(), std::max(depth, 1));
    default:
        break;
    }
    const std::string word = sentence.kind == Kind::All ? "and" : "or";
    std::string result;
    for (const Sentence& part : sentence.parts) {
        if (!result.empty()) result += (depth == 0 ? ", " : " ") + word + ' ';
        result += rendered(part, depth + 1);
    }
    if (sentence.kind == Kind::Either) return depth < 2 ? "either " + result : "(either " + result + ')';
    if (depth > 1) return '(' + result + ')';
    return depth == 1 && sentence.kind == Kind::Any ? "either " + result : result;
}

Sentence joined(Kind kind, std::vector<Sentence> parts) {
    Sentence result;
    result.kind = kind;
    result.parts = std::move(parts);
    return result;
}

} // namespace

Sentence Sentence::all(std::vector<Sentence> parts) {
    return joined(Kind::All, std::move(parts));
}

Sentence Sentence::any(std::vector<Sentence> parts) {
    return joined(Kind::Any, std::move(parts));
}

bool mentions(const std::string& text, const std::string& name) {
    const auto isLetter = [&](std::size_t at) {
        return at < text.size() && (text[at] == '_' || std::isalnum(static_cast<unsigned char>(text[at])) != 0);
    };
    for (std::size_t at = text.find(name); at != text.npos; at = text.find(name, at + 1)) {
        if (!isLetter(at + name.size()) && (at == 0 || !isLetter(at - 1))) return true;
    }
    return false;
}

bool excludes(const Sentence& a, const Sentence& b) {
    const auto holdsWith = [](const Sentence& whole, auto test) {
        return test(whole) || (whole.kind == Kind::All && std::ranges::any_of(whole.parts, test));
    };
    return holdsWith(a, [&](const Sentence& one) {
        return holdsWith(b, [&](const Sentence& other) { return isContrary(one, other); });
    });
}

Sentence merged(Sentence sentence) {
    simplify(sentence);
    merge(sentence);
    return sentence;
}

std::string inWords(Sentence sentence) {
    return rendered(merged(std::move(sentence)), 0);
}

} // namespace velkor::rulegen
