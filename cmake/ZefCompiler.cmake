# Language, warnings, sanitizers and the definitions that the engine's build tool would pass.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
	set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()
# Checks stay on in every build, as in an editor build of the engine; only the optimiser differs.
# Nobody asks errno about arithmetic, and rounding to an integer is one instruction without it.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -fno-math-errno")

find_program(ZEF_CCACHE ccache)
if(ZEF_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
	set(CMAKE_CXX_COMPILER_LAUNCHER "${ZEF_CCACHE}")
endif()

find_package(Threads REQUIRED)

add_library(zef_flags INTERFACE)
target_compile_options(zef_flags INTERFACE -Wall -Wextra -Wno-unknown-pragmas)
target_link_libraries(zef_flags INTERFACE Threads::Threads)
# Modules register themselves from static initialisers: a library may not be dropped because no symbol of it is named.
target_link_options(zef_flags INTERFACE -Wl,--no-as-needed)

set(zef_api_modules
	Core CoreUObject Projects InputCore RHI RenderCore SlateCore Slate ToolMenus GeometryCore AssetRegistry Analytics
	AnalyticsET Engine
	GeometryFramework EditorFramework UnrealEd MainFrame EditorStyle Documentation StatusBar PropertyEditor
	AdvancedPreviewScene MaterialEditor
	EditorScriptingUtilities Launch ZEFTandemRuntime ZEFTandemMisc ZEFTandemEditor)
foreach(module IN LISTS zef_api_modules)
	string(TOUPPER "${module}" upper)
	target_compile_definitions(zef_flags INTERFACE "${upper}_API=")
endforeach()
target_compile_definitions(zef_flags INTERFACE
	WITH_EDITOR=1 WITH_EDITORONLY_DATA=1 UE_BUILD_DEVELOPMENT=1 DO_CHECK=1)

if(ZEF_SANITIZE)
	add_compile_options("-fsanitize=${ZEF_SANITIZE}" -fno-omit-frame-pointer)
	add_link_options("-fsanitize=${ZEF_SANITIZE}")
	if(ZEF_SANITIZE MATCHES "undefined")
		add_compile_options(-fno-sanitize-recover=undefined)
	endif()
endif()

# Every module tells the fuzzer which of its branches were taken; only the fuzzers themselves link its main.
if(ZEF_FUZZERS)
	add_compile_options(-fsanitize=fuzzer-no-link)
	add_link_options(-fsanitize=fuzzer-no-link)
endif()
