# Makes a manual page of what a program says of itself (docs/programs/NAME.txt).
#
# The first line is "NAME - what it does"; "Title:" begins a section; a line that one further in
# follows is a term with its explanation; the lines of the usage stand as they are.
# awk -v version=3.02.02 -f man.awk NAME.txt
function roff(text) {
  sub(/^ +/, "", text)
  gsub(/\\/, "\\e", text)
  gsub(/-/, "\\-", text)
  return text ~ /^[.']/ ? "\\&" text : text
}
function indent(text) {
  match(text, /^ */)
  return RLENGTH
}
{ line[NR] = $0 }
END {
  split(line[1], words, " ")
  printf ".TH %s 1 \"\" \"ORM2002 %s\" \"Manuale di ORM2002\"\n", toupper(words[1]), version
  printf ".SH NOME\n%s\n", roff(line[1])
  for (i = 2; i <= NR; i++) {
    if (line[i] ~ /^[A-Z].*:$/) {
      title = toupper(substr(line[i], 1, length(line[i]) - 1))
      print ".SH " (title == "USO" ? "SINTASSI" : title)
      usages = 0
    } else if (line[i] == "") {
      if (line[i + 1] ~ /^ /) print ".PP"
    } else if (title == "USO") {
      if (usages++) print ".br"
      print roff(line[i])
    } else if (indent(line[i]) == 2 && indent(line[i + 1]) > 2) {
      print ".TP\n.B " roff(line[i])
    } else {
      print roff(line[i])
    }
  }
}
