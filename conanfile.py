"""The libraries, and the tool if asked for, as a package for Conan 2: conan create ."""

import re
from pathlib import Path

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load


class OstraParameters(ConanFile):
    name = "ostra-parameters"
    description = "A registry of parameter definitions: JSON schema texts in, immutable value objects out"
    license = "Apache-2.0"
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False], "fPIC": [True, False], "tool": [True, False]}
    default_options = {"shared": True, "fPIC": True, "tool": False}
    implements = ["auto_shared_fpic"]
    exports_sources = (
        "CMakeLists.txt", "LICENSE", "cmake/*", "debuggers/*", "docs/*.md", "include/*", "src/*", "tools/*", "units/*",
    )

    def set_version(self):
        project = load(self, str(Path(self.recipe_folder) / "CMakeLists.txt"))
        self.version = re.search(r"^ +VERSION (\S+)$", project, re.MULTILINE).group(1)

    def requirements(self):
        # No public header shows them.
        self.requires("rapidjson/cci.20230929", visible=False)
        if self.options.tool:
            self.requires("cli11/[>=2.3 <3]", visible=False)
            self.requires("fmt/[>=9 <12]", visible=False)
            self.requires("nlohmann_json/[>=3.11 <4]", visible=False)

    def validate(self):
        check_min_cppstd(self, 17)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["OSTRA_PARAMETERS_TESTS"] = False
        toolchain.cache_variables["OSTRA_PARAMETERS_EXAMPLES"] = False
        toolchain.cache_variables["OSTRA_PARAMETERS_WERROR"] = False
        toolchain.cache_variables["OSTRA_PARAMETERS_TOOLS"] = bool(self.options.tool)
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, str(Path(self.package_folder) / "licenses"))
        CMake(self).install()

    def package_info(self):
        # The package's own files tell CMake all; what follows is for others.
        self.cpp_info.set_property("cmake_find_mode", "none")
        for name, requires in ("Units", []), ("Parameters", ["units"]):
            component = self.cpp_info.components[name.lower()]
            component.libs = [f"Ostra{name}"]
            component.requires = requires
            component.builddirs = [f"lib/cmake/Ostra{name}"]
            component.set_property("pkg_config_name", f"ostra-{name.lower()}")
            if not self.options.shared:
                component.defines = [f"{name.upper()}_STATIC_DEFINE"]
