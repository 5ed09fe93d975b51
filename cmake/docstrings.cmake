# Writes the documentation comments of the public classes as a table for C++, so that
# what `zq7 help` prints and what the headers say cannot differ:
#
#   cmake -DHEADERS=<header,header...> -DOUTPUT=<file> -P docstrings.cmake
#
# A comment belongs to the declaration on the line behind it: of an exported class at the
# line's start, of a member two blanks in. "///<" belongs to the member on its own line.

set(rows "")
string(REPLACE "," ";" headers "${HEADERS}")
foreach(header IN LISTS headers)
  file(READ ${header} rest)
  set(class "")
  set(comment "")
  while(rest MATCHES "^([^\n]*)\n")
    set(line "${CMAKE_MATCH_1}")
    string(LENGTH "${line}\n" length)
    string(SUBSTRING "${rest}" ${length} -1 rest)
    set(name "")
    if(line MATCHES "^ *///<? ?(.*)$")
      string(APPEND comment "${CMAKE_MATCH_1}\n")
      continue()
    elseif(line MATCHES "^class ZQ7STANDARD_EXPORT ([A-Za-z0-9]+) .*{")
      set(class "${CMAKE_MATCH_1}")
      set(name "${class}")
    elseif(class AND line MATCHES "^  [A-Za-z0-9_:<> ]+ ([A-Za-z0-9_]+)\\(")
      set(name "${class}.${CMAKE_MATCH_1}")
      if(line MATCHES "///< (.*)$")
        set(comment "${CMAKE_MATCH_1}\n")
      endif()
    endif()
    if(name AND comment)
      string(APPEND rows "    {\"${name}\", R\"doc(${comment})doc\"},\n")
    endif()
    set(comment "")
  endwhile()
endforeach()
file(WRITE ${OUTPUT} "${rows}")
