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
    target_compile_options(quillon_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillon_settings INTERFACE -fsanitize=address,undefined)
endif()

if(QUILLON_COVERAGE)
    target_compile_options(quillon_settings INTERFACE --coverage)
    target_link_options(quillon_settings INTERFACE --coverage)
endif()
