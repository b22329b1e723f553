# From the table of the guide, which names the gallery's pages in its last column: each class with the picture of each of
# them, as lines "CEditN text_boxes.png".
BEGIN { FS = "|" }
/^\|.*\.h\)/ {
    count = split($4, pages, ",")
    classes = $3
    gsub(/\([^)]*\)/, " ", classes)
    while (match(classes, /[CA][A-Z][A-Za-z0-9]*/)) {
        for (i = 1; i <= count; ++i) {
            page = pages[i]
            gsub(/^ +| +$/, "", page)
            gsub(/ /, "_", page)
            print substr(classes, RSTART, RLENGTH), tolower(page) ".png"
        }
        classes = substr(classes, RSTART + RLENGTH)
    }
}
