# Writes the program's manual page from its --help text, so that the two never disagree.
#   cmake -DPROGRAM=path/to/orbiscope -DOUT=orbiscope.1 -DVERSION=x.y.z -P ManPage.cmake
# The first line of the help ("orbiscope VERSION - what it is") gives the name line; the rest
# stands as it is, unfilled, with the characters roff would take for its own made literal.
execute_process(COMMAND "${PROGRAM}" --help OUTPUT_VARIABLE help RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} --help failed: ${status}")
endif()
string(REGEX REPLACE "\n+$" "" help "${help}")
# CMake's ^ matches wherever a search resumes, so the lines are split by position instead.
string(FIND "${help}" "\n" end)
string(SUBSTRING "${help}" 0 ${end} first)
math(EXPR start "${end} + 1")
string(SUBSTRING "${help}" ${start} -1 body)
string(REGEX REPLACE "^\n+" "" body "${body}")
string(FIND "${first}" " - " dash)
math(EXPR dash "${dash} + 3")
string(SUBSTRING "${first}" ${dash} -1 summary)

string(REPLACE "\\" "\\e" body "${body}")
string(REPLACE "-" "\\-" body "${body}")
# A line that starts with a dot or an apostrophe would be a roff request.
set(body "\n${body}")
string(REPLACE "\n." "\n\\&." body "${body}")
string(REPLACE "\n'" "\n\\&'" body "${body}")
string(SUBSTRING "${body}" 1 -1 body)

file(WRITE "${OUT}" ".TH ORBISCOPE 1 \"\" \"orbiscope ${VERSION}\" \"User Commands\"
.SH NAME
orbiscope \\- ${summary}
.SH DESCRIPTION
.nf
${body}
.fi
.SH FILES
.TP
.I share/orbiscope/
the catalogues, city list, time zones, strings and help page of the installation
.TP
.I ~/.config/orbiscope/
the user's settings: orbiscope.ini over the shipped one, and registry.db with the saved views
(\\fB$ORBISCOPE_HOME\\fR or \\fB$XDG_CONFIG_HOME\\fR/orbiscope when set)
")
