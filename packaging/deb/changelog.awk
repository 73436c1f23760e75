# SPDX-License-Identifier: GPL-3.0-or-later
# The released versions of CHANGELOG.md as a Debian changelog, in lines of at most 78 characters. -v maintainer='NAME <MAIL>'
function put_item(  count, words, i, line) {
    if (item == "") return
    count = split(item, words, " ")
    line = "  *"
    for (i = 1; i <= count; i++) {
        if (length(line " " words[i]) > 78) {
            print line
            line = "   "
        }
        line = line " " words[i]
    }
    print line
    item = ""
}
function close_version() {
    put_item()
    if (version != "") printf "\n -- %s  %s\n\n", maintainer, date
    version = ""
}
/^## / {
    close_version()
    if (match($0, /[0-9]+\.[0-9]+\.[0-9]+/)) {
        version = substr($0, RSTART, RLENGTH)
        match($0, /[0-9]+-[0-9]+-[0-9]+/)
        command = "date -u -R -d " substr($0, RSTART, RLENGTH)
        command | getline date
        close(command)
        printf "zelpane (%s) stable; urgency=medium\n\n", version
    }
    next
}
version == "" || NF == 0 { next }
{ gsub(/`/, "") }
/^- / { put_item(); item = substr($0, 3); next }
{ item = item " " $0 }
END { close_version() }
