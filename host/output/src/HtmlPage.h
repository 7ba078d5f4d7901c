/// What the HTML pages are made of: a head that lets nothing run, and tables.
#pragma once

#include "Html.h"
#include "terminal/Page.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace velkor::host {

/// Up to the beginning of the body.
void beginPage(const Html& html, const std::string& title);
/// The footer, and the end of it all.
void endPage(const Html& html);

/// The class of a text in a style.
std::string_view styleClass(Page::Style style);

struct Column {
    std::string_view heading;
    bool isNumber = false;
};

/// A wide table scrolls by itself, with the keyboard as well.
void beginTable(const Html& html, std::string_view label, std::initializer_list<Column> columns);
void endTable(const Html& html);
/// Begins a row with its heading.
void writeRowHeading(const Html& html, const std::string& text);
/// Cells.
void writeText(const Html& html, const std::string& text);
void writeNumber(const Html& html, const std::string& number);
/// The last cell of a row.
void writeBar(const Html& html, double part);

} // namespace velkor::host
