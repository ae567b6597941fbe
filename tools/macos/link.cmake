# Every program is linked by tools/macos/link.
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_LINK_EXECUTABLE
        "${CMAKE_CURRENT_LIST_DIR}/link $ENV{TAVRIK_MACOS_TARGET} $ENV{TAVRIK_SDK} <TARGET> <OBJECTS> <LINK_LIBRARIES>")
endforeach()
