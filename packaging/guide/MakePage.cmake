# SPDX-License-Identifier: GPL-3.0-or-later
# PAGE (Markdown with tables) as a page of the guide: CMARK's body in FRAME, links between pages leading to pages.
execute_process(COMMAND ${CMARK} --extension table ${PAGE} OUTPUT_VARIABLE BODY COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([a-z-]+)\\.md([^\"]*)\"" "href=\"\\1.html\\2\"" BODY "${BODY}")
string(REPLACE "href=\"../examples/" "href=\"../../doc/zelpane/examples/" BODY "${BODY}") # as installed
string(REGEX MATCH "<h1>([^<]*)</h1>" heading "${BODY}")
set(TITLE "${CMAKE_MATCH_1}")
configure_file(${FRAME} ${OUT} @ONLY)
