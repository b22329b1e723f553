# From the table of the guide, which names the gallery's pages in its last column: each class with the picture of the
# first of them, as a line "CEditN text_boxes.png".
BEGIN { FS = "|" }
/^\|.*\.h\)/ {
    page = $4
    sub(/,.*/, "", page)
    gsub(/^ +| +$/, "", page)
    gsub(/ /, "_", page)
    classes = $3
    gsub(/\([^)]*\)/, " ", classes)
    while (match(classes, /[CA][A-Z][A-Za-z0-9]*/)) {
        print substr(classes, RSTART, RLENGTH), tolower(page) ".png"
        classes = substr(classes, RSTART + RLENGTH)
    }
}
