# Engine modules and plug-in modules as CMake targets.
#
# A module M has up to three faces:
#   M_public   what Source/ may see: M/Public and its generated headers, and the same of the modules below
#   M_headers  what the host itself may see: M_public and M/Internal, and the same of the modules below
#   M          the object library; its include paths end with the layers below, so a layer cannot look up

set(ZEF_GENERATED_DIR "${CMAKE_BINARY_DIR}/generated")

# Runs the header tool over all headers of a module and appends <Module>.gen.cpp to the sources in `out_sources`.
function(zef_reflect module out_sources)
	set(headers ${ARGN})
	set(reflected FALSE)
	foreach(header IN LISTS headers)
		file(STRINGS "${header}" found REGEX "^#include \".*\\.generated\\.h\"" LIMIT_COUNT 1)
		if(found)
			set(reflected TRUE)
			break()
		endif()
	endforeach()
	if(NOT reflected OR NOT TARGET zef-header-tool)
		return()
	endif()
	set(out "${ZEF_GENERATED_DIR}/${module}")
	file(MAKE_DIRECTORY "${out}")
	add_custom_command(
		OUTPUT "${out}/${module}.gen.cpp" "${out}/${module}.stamp"
		COMMAND zef-header-tool --module ${module} --package /Script/${module} --out "${out}" ${headers}
		COMMAND ${CMAKE_COMMAND} -E touch "${out}/${module}.stamp"
		DEPENDS zef-header-tool ${headers}
		COMMENT "Reflecting ${module}"
		VERBATIM)
	add_custom_target(${module}_reflection DEPENDS "${out}/${module}.stamp")
	set(${out_sources} ${${out_sources}} "${out}/${module}.gen.cpp" PARENT_SCOPE)
endfunction()

# zef_module(<name> DIR <dir> SET <engine|plugin> [DEPENDS modules...] [LINK libraries...])
function(zef_module module)
	cmake_parse_arguments(arg "" "DIR;SET" "DEPENDS;LINK" ${ARGN})
	file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${arg_DIR}/Private/*.cpp")
	file(GLOB_RECURSE headers CONFIGURE_DEPENDS
		"${arg_DIR}/Public/*.h" "${arg_DIR}/Internal/*.h" "${arg_DIR}/Private/*.h")
	zef_reflect(${module} sources ${headers})

	add_library(${module}_public INTERFACE)
	target_include_directories(${module}_public INTERFACE "${arg_DIR}/Public")
	target_link_libraries(${module}_public INTERFACE zef_flags ${arg_LINK})
	add_library(${module}_headers INTERFACE)
	target_include_directories(${module}_headers INTERFACE "${arg_DIR}/Internal")
	target_link_libraries(${module}_headers INTERFACE ${module}_public)
	foreach(dependency IN LISTS arg_DEPENDS)
		target_link_libraries(${module}_public INTERFACE ${dependency}_public)
		target_link_libraries(${module}_headers INTERFACE ${dependency}_headers)
	endforeach()
	if(TARGET ${module}_reflection)
		target_include_directories(${module}_public INTERFACE "${ZEF_GENERATED_DIR}/${module}")
		add_dependencies(${module}_public ${module}_reflection)
	endif()

	if(sources)
		add_library(${module} OBJECT ${sources})
		target_include_directories(${module} PRIVATE "${arg_DIR}/Private")
		if(arg_SET STREQUAL "plugin")
			target_link_libraries(${module} PRIVATE ${module}_public)
		else()
			target_link_libraries(${module} PRIVATE ${module}_headers)
		endif()
		set_property(GLOBAL APPEND PROPERTY ZEF_${arg_SET}_OBJECTS ${module})
	endif()
	set_property(GLOBAL APPEND PROPERTY ZEF_${arg_SET}_MODULES ${module})
	set_property(GLOBAL PROPERTY ZEF_DEPENDS_${module} ${arg_DEPENDS})
endfunction()

# Precompiles `header` for the modules named.
function(zef_precompile header)
	if(NOT ZEF_PCH)
		return()
	endif()
	foreach(module IN LISTS ARGN)
		if(TARGET ${module})
			target_precompile_headers(${module} PRIVATE "${header}")
		endif()
	endforeach()
endfunction()
