# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
#
# Reads the levels table, then the sources. A row is
#   | `target` | `model/Pattern*` `model/Notes.*` | `below` `further_below` | Qt Core, Qt Gui |
# A star stops at a folder. The first row with a pattern for a file says its target. A target may
# include itself and what its third column names; the fourth names the libraries it may know besides
# the C++ library.

function fail(text) {
    printf "%s:%d: %s\n", FILENAME, FNR, text
    faults++
}

# The words of a table cell that stand in backticks, into out[1..n].
function ticked(cell, out,    n, parts, count, i) {
    count = split(cell, parts, "`")
    n = 0
    for (i = 2; i <= count; i += 2) out[++n] = parts[i]
    return n
}

function pattern_of(shell,    re) {
    re = shell
    gsub(/\./, "\\.", re)
    gsub(/\*/, "[^/]*", re)
    return "^" re "$"
}

function read_row(    cells, words, n, i) {
    split($0, cells, "|")
    if (ticked(cells[2], words) != 1) return
    target = words[1]
    known[target] = 1
    n = ticked(cells[3], words)
    for (i = 1; i <= n; i++) {
        rows++
        row_pattern[rows] = pattern_of(words[i])
        row_target[rows] = target
    }
    may[target, target] = 1
    n = ticked(cells[4], words)
    for (i = 1; i <= n; i++) {
        if (!(words[i] in known)) fail("`" words[i] "` stands below `" target "` but has no row above it")
        may[target, words[i]] = 1
    }
    libraries[target] = cells[5]
    gsub(/^ +| +$/, "", libraries[target])
    gsub(/ *, */, ",", libraries[target])
}

function target_of(path,    i) {
    for (i = 1; i <= rows; i++)
        if (path ~ row_pattern[i]) return row_target[i]
    return ""
}

function exists(path,    line, answer) {
    answer = (getline line < path) >= 0
    close(path)
    return answer
}

# "Qt Gui" for <QImage> and <QtGui/QImage>; "" if it is no header of Qt.
function qt_module(header,    i, modules, n, slash) {
    if (header in module_seen) return module_seen[header]
    module_seen[header] = ""
    if (header ~ /^Qt[A-Z][A-Za-z]*\//) {
        slash = index(header, "/")
        module_seen[header] = "Qt " substr(header, 3, slash - 3)
    } else if (header ~ /^(Q[A-Z][A-Za-z]*|q[a-z_]+\.h)$/) {
        module_seen[header] = "Qt of an unknown module"
        n = split("Core Gui Widgets PrintSupport Network Xml Sql Test DBus OpenGL Concurrent Svg", modules, " ")
        for (i = 1; i <= n; i++)
            if (qt != "" && exists(qt "/Qt" modules[i] "/" header)) {
                module_seen[header] = "Qt " modules[i]
                break
            }
        # Without Qt's headers at hand only the unmistakable can be told.
        if (qt == "") module_seen[header] = "Qt Core"
    }
    return module_seen[header]
}

function check_library(header,    library) {
    library = qt_module(header)
    if (library == "" && header ~ /^vips\//) library = "libvips"
    if (library == "" && header ~ /^sane\//) library = "SANE"
    if (library == "" && header ~ /^cups\//) library = "CUPS"
    if (library == "" && header ~ /^(glib|gobject|gio)/) library = "libvips"
    if (library != "" && index("," libraries[here] ",", "," library ",") == 0)
        fail(here " may not include <" header "> (" library ")")
}

function check_own(path,    there) {
    if (path !~ /\//) {
        fail("include by subsystem path (\"model/Pattern.h\"), not \"" path "\"")
        return
    }
    there = target_of(path)
    if (path ~ /\/windows\// && here !~ /_windows$/ && here != "korvanta")
        fail("core may not include a window: \"" path "\"")
    else if (there == "")
        fail("\"" path "\" belongs to no target of the levels table")
    else if (!((here, there) in may))
        fail(here " may not include " there " (\"" path "\")")
}

FILENAME == table {
    if ($0 ~ /^## /) in_levels = ($0 ~ /^## Levels/)
    if (in_levels && $0 ~ /^\| *`/) read_row()
    next
}

FNR == 1 {
    if (rows == 0) {
        print table ": no levels table"
        faults++
        exit
    }
    path = FILENAME
    sub(/^src\//, "", path)
    here = target_of(path)
    if (here == "") fail("the file belongs to no target of the levels table")
}

/^[ \t]*#[ \t]*include/ && here != "" {
    line = $0
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", line)
    name = line
    if (line ~ /^"/) {
        sub(/^"/, "", name)
        sub(/".*/, "", name)
        check_own(name)
    } else if (line ~ /^</) {
        sub(/^</, "", name)
        sub(/>.*/, "", name)
        check_library(name)
    }
}

END { exit faults > 0 }
