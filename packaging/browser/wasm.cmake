# The tools that make WebAssembly, all of them Debian's.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++-22)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_AR llvm-ar-22)
set(CMAKE_RANLIB llvm-ranlib-22)
# There is nothing to run a trial program with.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_EXECUTABLE_SUFFIX_CXX .wasm)

# Copies of pixels are six times as quick with SIMD. -Wno-deprecated: the driver calls its own old name
# for this target deprecated.
set(CMAKE_CXX_FLAGS_INIT "-msimd128 -fno-exceptions -fno-rtti -ffunction-sections -fdata-sections -Wno-deprecated")
# A reactor is a library that the page calls. wasm-opt would run unasked wherever it is installed, and
# the bytes would depend on that.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-mexec-model=reactor --no-wasm-opt -fuse-ld=/usr/bin/wasm-ld-22 -Wl,--gc-sections,--strip-debug,-z,stack-size=1048576")
