# One target that carries the language level, the warnings and the numerics for every other target.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(quillon_settings INTERFACE)
target_compile_features(quillon_settings INTERFACE cxx_std_20)
target_include_directories(quillon_settings INTERFACE "${PROJECT_SOURCE_DIR}")

# Every named value is rounded to 32 bits once; a fused multiply-add would skip a rounding.
target_compile_options(quillon_settings INTERFACE -ffp-contract=off)
target_compile_options(quillon_settings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

if(QUILLON_WARNINGS_AS_ERRORS)
    target_compile_options(quillon_settings INTERFACE -Werror)
endif()

if(QUILLON_SANITIZE)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "QUILLON_SANITIZE needs clang++: other compilers do not check implicit conversions.")
    endif()
    set(sanitizers -fsanitize=address,undefined,float-divide-by-zero,implicit-conversion)
    target_compile_options(quillon_settings INTERFACE ${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer
        "-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/sanitizer_ignorelist.txt")
    target_link_options(quillon_settings INTERFACE ${sanitizers})
endif()

# What makes a mistake that is left hard to abuse; the sanitizers watch closer than that. The checked buffer lengths need an
# optimising compiler.
include(CheckPIESupported)
check_pie_supported()
if(NOT QUILLON_SANITIZE AND NOT QUILLON_COVERAGE)
    target_compile_options(quillon_settings INTERFACE
        -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    target_link_options(quillon_settings INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()

if(QUILLON_COVERAGE)
    target_compile_options(quillon_settings INTERFACE --coverage)
    target_link_options(quillon_settings INTERFACE --coverage)
endif()
