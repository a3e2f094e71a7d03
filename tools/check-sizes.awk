# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
#
# Measures files and functions by matching braces, with comments and literals taken out first. What
# a brace opens is told from the text before it: a namespace, a type, a function, or something
# inside one. A function's length is counted from its opening to its closing brace, both included;
# lambdas inside a function belong to it.

function end_of_file(    limit) {
    if (current == "" || list) return
    limit = current ~ /\.h$/ ? 300 : 600
    if (lines > limit) {
        printf "%s: %d lines, at most %d\n", current, lines, limit
        faults++
    }
    if (depth != 0) {
        printf "%s: braces do not match, so functions cannot be measured\n", current
        faults++
    }
}

# The line without comments, texts and characters; block comments and raw texts go over lines.
function stripped(line,    out, c, two, i, n, quote, start) {
    out = ""
    n = length(line)
    i = 1
    while (i <= n) {
        if (raw_end != "") {
            start = index(substr(line, i), raw_end)
            if (start == 0) return out
            i += start - 1 + length(raw_end)
            raw_end = ""
            continue
        }
        if (in_comment) {
            start = index(substr(line, i), "*/")
            if (start == 0) return out
            i += start + 1
            in_comment = 0
            continue
        }
        c = substr(line, i, 1)
        two = substr(line, i, 2)
        if (two == "//") return out
        if (two == "/*") {
            in_comment = 1
            i += 2
        } else if (two == "R\"") {
            start = index(substr(line, i), "(")
            raw_end = ")" substr(line, i + 2, start - 3) "\""
            i += start
            out = out "_"
        } else if (c == "\"" || (c == "'" && substr(out, length(out), 1) !~ /[0-9A-Fa-f]/)) {
            # A ' after a digit parts the digits of a number.
            quote = c
            i++
            while (i <= n && substr(line, i, 1) != quote) i += substr(line, i, 1) == "\\" ? 2 : 1
            i++
            out = out "_"
        } else {
            out = out c
            i++
        }
    }
    return out
}

function inside_function(    i) {
    for (i = depth; i > 0; i--)
        if (kind[i] == "function") return 1
    return 0
}

# What the brace after this text opens.
function kind_of(head) {
    if (inside_function()) return "inner"
    # As it is formatted, a body stands apart by a blank and an initialiser's brace does not.
    if (head !~ / $/) return "values"
    gsub(/alignas\([^()]*\)/, "", head)
    if (head ~ /(^|[^A-Za-z_])namespace([^A-Za-z_]|$)/) return "namespace"
    if (head ~ /^ *extern *_ *$/) return "namespace"
    if (head ~ /=[^()]*$/ || head ~ /[,({] *$/) return "values"
    if (head ~ /(^|[^A-Za-z_])(class|struct|union|enum)([^A-Za-z_]|$)/ && head !~ /\)[^()]*$/) return "type"
    if (head ~ /\)/) return "function"
    return "values"
}

function name_of(head,    name) {
    name = head
    sub(/\(.*/, "", name)
    sub(/ +$/, "", name)
    sub(/.*[ *&]/, "", name)
    sub(/.*::/, "", name)
    if (head ~ /(^|[^A-Za-z_])(TEST|TEST_F|TEST_P)\(/) {
        name = head
        sub(/.*TEST(_[FP])?\(/, "", name)
        sub(/\).*/, "", name)
        gsub(/ /, "", name)
        sub(/,/, ".", name)
    }
    return name == "" ? "(unnamed)" : name
}

function close_function(    length_, name) {
    length_ = FNR - opened[depth] + 1
    name = named[depth]
    if (list) {
        printf "%d %s:%d %s\n", length_, FILENAME, opened[depth], name
        return
    }
    if (length_ <= 60) return
    if ((FILENAME, name) in excepted) {
        used[FILENAME, name] = 1
        return
    }
    printf "%s:%d: %s has %d lines, at most 60\n", FILENAME, opened[depth], name, length_
    faults++
}

function walk(text,    i, n, c) {
    n = length(text)
    for (i = 1; i <= n; i++) {
        c = substr(text, i, 1)
        if (c == "{") {
            kind[depth + 1] = kind_of(head)
            depth++
            opened[depth] = FNR
            named[depth] = name_of(head)
            kept[depth] = head
            head = ""
        } else if (c == "}") {
            if (depth > 0) {
                if (kind[depth] == "function") close_function()
                # Braces around values stand within a statement, which goes on behind them.
                head = kind[depth] == "values" ? kept[depth] "_" : ""
                depth--
            } else {
                depth = -1000
            }
        } else if (c == ";") {
            head = ""
        } else {
            head = head c
        }
    }
    head = head " "
}

FILENAME == exceptions {
    if ($0 !~ /^#/ && NF > 0) {
        if (NF < 3) {
            printf "%s:%d: file, function and reason are needed\n", FILENAME, FNR
            faults++
        }
        excepted[$1, $2] = 1
    }
    next
}

FNR == 1 {
    end_of_file()
    current = FILENAME
    depth = 0
    head = ""
    in_comment = 0
    raw_end = ""
    continued = 0
}

{
    lines = FNR
    # Preprocessor lines, continued ones too, say nothing of the braces.
    if (continued || $0 ~ /^[ \t]*#/) {
        continued = $0 ~ /\\$/
        next
    }
    walk(stripped($0))
}

END {
    end_of_file()
    if (!list)
        for (key in excepted)
            if (!(key in used)) {
                split(key, parts, SUBSEP)
                printf "%s: %s of %s is not over 60 lines\n", exceptions, parts[2], parts[1]
                faults++
            }
    exit faults > 0
}
