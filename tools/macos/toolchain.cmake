# Builds for a Mac on a machine that is none: clang with a macOS SDK folder, and tools/macos/link in the
# linker's place. tools/check-macos says which folder and which processor; nothing that is made can run.
set(CMAKE_SYSTEM_NAME Darwin)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR "$ENV{TAVRIK_MACOS_TARGET}")
set(CMAKE_OSX_SYSROOT "")
set(CMAKE_OSX_ARCHITECTURES "")

set(CMAKE_AR /usr/bin/llvm-ar-19)
set(CMAKE_RANLIB /usr/bin/llvm-ranlib-19)
set(CMAKE_INSTALL_NAME_TOOL /usr/bin/llvm-install-name-tool-19)
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER /usr/bin/clang++-19)
    set(CMAKE_${language}_COMPILER_TARGET $ENV{TAVRIK_MACOS_TARGET})
    set(CMAKE_${language}_COMPILER_WORKS TRUE)
    # What the oldest system lacks is an error, like every warning.
    string(JOIN " " CMAKE_${language}_FLAGS_INIT
        -Werror=unguarded-availability -nostdinc++ -isystem $ENV{TAVRIK_SDK}/include/c++/v1 -nostdlibinc
        -isystem $ENV{TAVRIK_SDK}/include -iframework $ENV{TAVRIK_SDK}/Frameworks -isystem $ENV{TAVRIK_STAND_INS}/include)
endforeach()

# The other libraries are those of this machine: their headers say the same on a Mac, and the link is held
# against the names that they export.
set(CMAKE_PREFIX_PATH /usr)
set(CMAKE_LIBRARY_ARCHITECTURE $ENV{TAVRIK_MULTIARCH})
set(CMAKE_FIND_LIBRARY_SUFFIXES .tbd .so .a)
set(CMAKE_FRAMEWORK_PATH $ENV{TAVRIK_SDK}/Frameworks)
set(CMAKE_HAVE_LIBC_PTHREAD TRUE)
set(CMAKE_DISABLE_FIND_PACKAGE_WrapVulkanHeaders TRUE)
set(OPENSSL_INCLUDE_DIR $ENV{TAVRIK_STAND_INS}/include)
set(SQLite3_INCLUDE_DIR $ENV{TAVRIK_STAND_INS}/include)
set(ENV{PKG_CONFIG_LIBDIR} $ENV{TAVRIK_STAND_INS}/pkgconfig)

set(CMAKE_PROJECT_Tavrik_INCLUDE ${CMAKE_CURRENT_LIST_DIR}/link.cmake)
