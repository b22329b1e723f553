# Shows the library's headers to Doxygen as they are meant to be read:
# - The comment that opens a header is the manual of the class of the header's name, or else of the file; with the
#   first picture of the gallery that pictures.txt, lines of "class picture", names for it.
# - A comment holds for the declarations below it that are about the same, as of SetFont and GetFont. What has none has
#   the remark that opens its paragraph, or the heading of its section.
# - Left out is what derived classes inherit from MFC and have no word of their own for: handlers of messages, overrides,
#   and what is protected without a comment.
function manual(    i, code)
{
    print "/**"
    print class != "" ? "\\class " class : "\\file"
    for (i = 1; i <= lines; ++i) {
        if (text[i] ~ /^```/)
            code = !code
        if (!code && text[i] !~ /^    /) # texts with marks of their own, as <sub>
            gsub(/</, "\\<", text[i])
        print text[i]
    }
    if (class in picture)
        print "\n\\image html " picture[class]
    print "*/"
}

BEGIN {
    while ((getline line < "build/docs/pictures.txt") > 0) {
        split(line, words, " ")
        if (!(words[1] in picture))
            picture[words[1]] = words[2]
    }
    file = ARGV[1]
    name = file
    sub(/.*\//, "", name)
    sub(/\.h$/, "", name)
    while ((getline line < file) > 0)
        if (class == "" && match(line, "^(class|struct) [A-Z_ ]*[AC]?" name "( |$)")) {
            class = substr(line, RSTART, RLENGTH)
            sub(/ $/, "", class)
            sub(/.* /, "", class)
        }
}

/^#pragma once/ { opening = 1; print ""; next }
opening && /^\/\// {
    sub(/^\/\/ ?/, "")
    text[++lines] = $0
    next
}
opening { opening = 0; manual() }

/afx_msg |DECLARE_(MESSAGE_MAP|DYNCREATE|DYNAMIC|SERIAL)\(/ { doc = ""; next }

# A declaration that is left out, to its end.
skipping {
    depth += gsub(/{/, "{") - gsub(/}/, "}")
    skipping = depth > 0 || $0 !~ /[;}] *(\/\/.*)?$/
    next
}

/^(public|protected|private):/ { access = $1 }

# What a declaration is about: SetFont and GetFont are about the same.
function subject(line) {
    sub(/\(.*/, "", line)
    sub(/.*[ *&]/, "", line)
    sub(/^(Get|Set|Is|Has|Add|Remove)/, "", line)
    return line
}

function begins_nothing() { return /^ *(\/\/|#|};?$|{|$)/ || /^ *(public|protected|private):/ }

/^ *\/\/\// {
    if (!in_doc)
        doc = ""
    in_doc = 1
    doc = doc $0 "\n"
    about = ""
    print
    next
}
# Headings and remarks, for all that follows: a heading to the end of the class, a remark to the next blank line.
/^    \/\/ ---- / {
    heading = $0
    gsub(/^ *\/\/ -* *| *-*$/, "", heading)
    doc = about = ""
    next
}
/^    \/\/ [A-Z0-9]/ { remark = ""; in_remark = 1 }
/^    \/\/ / && in_remark { remark = remark "///" substr($0, 7) "\n"; next }
{ in_remark = 0 }
/^ *$/ { remark = "" }
/^[}]/ { heading = remark = "" }
begins_nothing() || /^(class|struct|enum)/ {
    doc = ""
    in_doc = continued = 0
    print
    next
}
!in_doc && !continued && (doc == "" || subject($0) != about) && remark == "" && $0 !~ /\/\/\/</ && $0 ~ /^ / && (access == "protected:" || / override/) {
    depth = gsub(/{/, "{") - gsub(/}/, "}")
    skipping = depth > 0 || $0 !~ /[;}] *(\/\/.*)?$/
    next
}
{
    if (in_doc)
        about = subject($0)
    else if (!continued && $0 ~ /^ / && $0 !~ /\/\/\/</) {
        if (doc != "" && about != "" && subject($0) == about)
            printf "%s", doc
        else if (remark != "")
            printf "%s", remark
        else if (heading != "")
            print "/// " heading "."
    }
    in_doc = 0
    continued = $0 !~ /[;}] *(\/\/.*)?$/
    print
}
