# Every program is linked by tools/macos/link. And this machine's own headers stay out, whichever library names
# their folder.
enable_language(OBJCXX) # before what is set for it here, which it would set anew
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_LINK_EXECUTABLE
        "${CMAKE_CURRENT_LIST_DIR}/link $ENV{TAVRIK_MACOS_TARGET} $ENV{TAVRIK_SDK} <TARGET> <OBJECTS> <LINK_LIBRARIES>")
    list(APPEND CMAKE_${language}_IMPLICIT_INCLUDE_DIRECTORIES /usr/include)
endforeach()
