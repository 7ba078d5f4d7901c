/// How the HTML page of a report looks: by day and night, on a phone, at a desk and on paper.
#pragma once

namespace velkor::host {

inline constexpr char reportStyle[] = R"(
:root { color-scheme: light dark; --page: #f4f6f8; --card: #ffffff; --text: #1b2129; --dim: #56606b; --line: #d8dee5;
  --bar: #3b6fb6; --good: #1a7038; --doubtful: #855400; --bad: #b3261e; }
@media (prefers-color-scheme: dark) {
  :root { --page: #12161b; --card: #1b2128; --text: #e5e9ee; --dim: #a5b0bc; --line: #353e49;
    --bar: #6f9fdc; --good: #6fd58c; --doubtful: #eeb64c; --bad: #ff9a91; }
}
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; }
body { margin: 0 auto; padding: 1.5rem 1rem; max-width: 68rem; background: var(--page); color: var(--text);
  font: 1rem/1.5 system-ui, sans-serif; overflow-wrap: anywhere; }
h1 { margin: 0; font-size: 1.7rem; line-height: 1.25; }
h2 { margin: 0; font-size: 1.2rem; }
h3 { margin: 1.2rem 0 .4rem; font-size: 1rem; }
p { margin: .3rem 0; }
a { color: inherit; }
.dim, footer { color: var(--dim); }
.good { color: var(--good); }
.doubtful { color: var(--doubtful); }
.bad { color: var(--bad); }
code { font: .9em ui-monospace, monospace; unicode-bidi: isolate; }
nav ul, .kinds { list-style: none; margin: 0; padding: 0; }
nav ul { display: grid; grid-template-columns: repeat(auto-fill, minmax(15rem, 1fr)); gap: .6rem; margin: 1.2rem 0; }
nav a { display: block; height: 100%; padding: .6rem .8rem; background: var(--card); border: 1px solid var(--line);
  border-radius: .5rem; text-decoration: none; }
nav a:hover, nav a:focus-visible { border-color: var(--bar); }
nav strong { display: block; }
section { margin: 0 0 1rem; padding: 1rem 1.2rem; background: var(--card); border: 1px solid var(--line);
  border-radius: .5rem; }
dl { display: grid; grid-template-columns: 9rem 1fr; gap: .2rem 1rem; margin: .6rem 0 0; }
dt { color: var(--dim); }
dd { margin: 0; }
.scroll { overflow-x: auto; margin-top: .6rem; }
table { width: 100%; border-collapse: collapse; font-variant-numeric: tabular-nums; }
th, td { padding: .3rem .6rem; border-bottom: 1px solid var(--line); text-align: left; vertical-align: top; }
th:first-child, td:first-child { padding-left: 0; }
thead th { color: var(--dim); font-weight: 600; }
tbody th { font-weight: 400; min-width: 9rem; }
td { min-width: 7rem; }
/* A word of the overview is as wide as it is. */
.models td:not([colspan]) { overflow-wrap: break-word; }
.number { min-width: 0; text-align: right; white-space: nowrap; }
thead .number { white-space: normal; }
.bar { width: 40%; min-width: 4rem; vertical-align: middle; }
.bar span { display: block; height: .8rem; min-width: 1px; border-radius: .15rem; background: var(--bar);
  print-color-adjust: exact; -webkit-print-color-adjust: exact; }
.models .bar { width: 20%; }
.models thead th { overflow-wrap: normal; }
.kinds li { margin-top: .6rem; padding-left: .8rem; border-left: .25rem solid currentColor; }
.kinds p, .kinds code { color: var(--text); }
.kinds .place { color: var(--dim); }
@media (max-width: 40rem) {
  body { padding: 1rem .6rem; }
  h1 { font-size: 1.35rem; }
  section { padding: .8rem; }
  dl { grid-template-columns: 1fr; gap: 0; }
  dd { margin-bottom: .5rem; }
  nav ul { grid-template-columns: 1fr 1fr; }
  nav a { font-size: .9rem; }
  th, td { padding: .3rem; font-size: .9rem; }
  tbody th { min-width: 7rem; }
  .bar { width: 25%; min-width: 3rem; }
}
@media print {
  :root { color-scheme: light; --page: #ffffff; --card: #ffffff; --text: #000000; --dim: #444444; --line: #bbbbbb;
    --bar: #3b6fb6; --good: #1a7038; --doubtful: #855400; --bad: #b3261e; }
  body { max-width: none; padding: 0; font-size: 10pt; }
  section { padding: 0; border: 0; }
  h2, h3 { break-after: avoid; }
  tr, li, nav li { break-inside: avoid; }
  .scroll { overflow: visible; }
}
)";

} // namespace velkor::host
