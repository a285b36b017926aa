# Reads CHANGELOG.md, the one place that says which version this is. Sets
#
#   PARLINO_VERSION    the newest version
#   PARLINO_RELEASES   all of them with their news, as the description for desktops wants them
set(changelog ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})

file(STRINGS ${changelog} lines)
set(PARLINO_VERSION)
set(PARLINO_RELEASES)
set(news)   # of the release that is being read
set(item)   # of its news, which may go on in the next line

macro(end_item)
  if(item)
    string(APPEND news "          <li>${item}</li>\n")
  endif()
  set(item)
endmacro()

macro(end_list)
  end_item()
  if(news)
    string(APPEND news "        </ul>\n")
  endif()
endmacro()

macro(end_release)
  end_list()
  if(news)
    string(APPEND PARLINO_RELEASES
      "      <description>\n${news}      </description>\n    </release>\n")
  endif()
  set(news)
endmacro()

foreach(line IN LISTS lines)
  string(REPLACE "&" "&amp;" line "${line}")
  string(REPLACE "<" "&lt;" line "${line}")
  if(line MATCHES "^## ([0-9]+\\.[0-9]+\\.[0-9]+) - ([0-9]+-[0-9]+-[0-9]+)$")
    end_release()
    if(NOT PARLINO_VERSION)
      set(PARLINO_VERSION ${CMAKE_MATCH_1})
    endif()
    string(APPEND PARLINO_RELEASES
      "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\">\n")
  elseif(line MATCHES "^### (.*)$")
    end_list()
    string(APPEND news "        <p>${CMAKE_MATCH_1}</p>\n        <ul>\n")
  elseif(line MATCHES "^- (.*)$")
    end_item()
    set(item "${CMAKE_MATCH_1}")
  elseif(line MATCHES "^  (.*)$")
    string(APPEND item " ${CMAKE_MATCH_1}")
  endif()
endforeach()
end_release()

if(NOT PARLINO_VERSION)
  message(FATAL_ERROR "CHANGELOG.md names no version")
endif()
