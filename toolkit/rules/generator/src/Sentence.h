/// What has to hold, as statements that are put in words: "Name is given", what ANDs and ORs join, and what goes for
/// members of an aggregate. Statements are simplified before they are worded: what a sibling says already is left out.
#pragma once

#include <string>
#include <vector>

namespace velkor::rulegen {

struct Sentence {
    enum class Kind {
        /// subject predicate.
        Simple,
        All,
        Any,
        /// Exactly one of two.
        Either,
        /// `subject` introduces what `parts` say of each: "for each t of Items".
        Scope,
    };
    Kind kind = Kind::Simple;
    std::string subject = {};
    std::string predicate = {};
    /// The predicate that says the contrary; empty when there is none of one's own.
    std::string opposite = {};
    std::vector<Sentence> parts = {};
    /// Of a simple statement that several were joined to: All or Any.
    Kind joinedAs = Kind::Simple;

    static Sentence all(std::vector<Sentence> parts);
    static Sentence any(std::vector<Sentence> parts);
};

/// Whether a name stands in a text as a word.
bool mentions(const std::string& text, const std::string& name);

/// Whether one of them says the contrary of what the other says, as a whole or in one part of several that all hold.
bool excludes(const Sentence& a, const Sentence& b);

/// Simplifies, joins what has a subject or a predicate in common, and puts it in words.
std::string inWords(Sentence sentence);

/// What several statements say of one subject as one statement: "t is a or b". Others stay as they are.
Sentence merged(Sentence sentence);

} // namespace velkor::rulegen
