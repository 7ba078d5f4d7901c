#include "HtmlPage.h"

#include "output/ClassificationText.h"
#include "ReportStyle.h"
#include "ReportText.h"

namespace velkor::host {

// Even a text that slipped through could run nothing and fetch nothing.
void beginPage(const Html& html, const std::string& title) {
    html << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
            "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
            "img-src data:\"/>\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
            "<link rel=\"icon\" href=\"data:,\"/>\n<title>"
         << title << "</title>\n<style>" << reportStyle << "</style>\n</head>\n<body>\n";
}

void endPage(const Html& html) {
    html << "<footer><p>Written by <code>velkor report --format html</code></p></footer>\n</body>\n</html>\n";
}

std::string_view styleClass(Page::Style style) {
    switch (style) {
    case Page::Style::Good:
        return "good";
    case Page::Style::Doubtful:
        return "doubtful";
    case Page::Style::Bad:
        return "bad";
    default:
        return "dim";
    }
}

void beginTable(const Html& html, std::string_view label, std::initializer_list<Column> columns) {
    html << "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" << label
         << "\">\n<table>\n<thead><tr>";
    for (const Column& column : columns) {
        html << "<th scope=\"col\" class=\"" << (column.isNumber ? "number" : "text") << "\">" << column.heading
             << "</th>";
    }
    html << "</tr></thead>\n<tbody>\n";
}

void endTable(const Html& html) {
    html << "</tbody>\n</table>\n</div>\n";
}

void writeRowHeading(const Html& html, const std::string& text) {
    html << "<tr><th scope=\"row\">" << text << "</th>";
}

void writeText(const Html& html, const std::string& text) {
    html << "<td>" << orDash(text) << "</td>";
}

void writeNumber(const Html& html, const std::string& number) {
    html << "<td class=\"number\">" << number << "</td>";
}

void writeBar(const Html& html, double part) {
    html << "<td class=\"bar\" aria-hidden=\"true\"><span style=\"width:" << decimal(part * 100.0, 1)
         << "%\"></span></td></tr>\n";
}

} // namespace velkor::host
