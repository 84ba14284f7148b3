# Warnings, strict Qt macros and sanitizers of the project's own code. Linked privately: who uses the libraries is not
# bound by them.
add_library(quintra_options INTERFACE)
target_compile_features(quintra_options INTERFACE cxx_std_17)
target_compile_options(quintra_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    # QSKIP() leaves out an argument.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
    $<$<BOOL:${QUINTRA_WERROR}>:-Werror>)
target_compile_definitions(quintra_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH)

if(QUINTRA_SANITIZE)
    target_compile_options(quintra_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(quintra_options INTERFACE -fsanitize=address,undefined)
endif()
