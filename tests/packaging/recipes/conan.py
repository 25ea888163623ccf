"""Does what conanfile.py asks of Conan, by the same calls of CMake: conan.py RECIPE BUILD PACKAGE CMAKE_OPTION...

What the package says of itself is printed last, a line for each component."""

import importlib.util
import subprocess
import sys
import types
from collections import defaultdict
from pathlib import Path

recipe_file, build_folder, package_folder, *cmake_options = sys.argv[1:]


def run(*command):
    subprocess.run(command, check=True, stdout=sys.stderr)


class Info(types.SimpleNamespace):
    def set_property(self, name, value):
        self.__dict__.setdefault("properties", {})[name] = value


class ConanFile:
    def __init__(self):
        self.recipe_folder = self.source_folder = str(Path(recipe_file).parent)
        self.build_folder, self.package_folder = build_folder, package_folder
        self.options = types.SimpleNamespace(**self.default_options)
        self.cpp_info = Info(components=defaultdict(Info))
        self.requirements_ = []
        self.cmake_variables = {}

    def requires(self, reference, visible):
        assert not visible, "No public header shows " + reference
        self.requirements_.append(reference)


class CMakeToolchain:
    def __init__(self, recipe):
        self.recipe, self.cache_variables = recipe, {}

    def generate(self):
        self.recipe.cmake_variables = self.cache_variables


class CMakeDeps:
    def __init__(self, recipe):
        pass

    def generate(self):
        pass


class CMake:
    def __init__(self, recipe):
        self.recipe = recipe

    def configure(self):
        recipe = self.recipe
        variables = [f"-D{name}={'ON' if value else 'OFF'}" for name, value in recipe.cmake_variables.items()]
        shared = f"-DBUILD_SHARED_LIBS={'ON' if recipe.options.shared else 'OFF'}"
        run("cmake", "-S", recipe.source_folder, "-B", recipe.build_folder, "-DCMAKE_BUILD_TYPE=Release", shared,
            f"-DCMAKE_INSTALL_PREFIX={recipe.package_folder}", *variables, *cmake_options)

    def build(self):
        run("cmake", "--build", self.recipe.build_folder, "--parallel", "2")

    def install(self):
        run("cmake", "--install", self.recipe.build_folder)


def copy(recipe, pattern, source, destination):
    found = list(Path(source).glob(pattern))
    assert found, pattern
    for file in found:
        Path(destination).mkdir(parents=True, exist_ok=True)
        (Path(destination) / file.name).write_bytes(file.read_bytes())


def module(name, **contents):
    sys.modules[name] = types.ModuleType(name)
    sys.modules[name].__dict__.update(contents)


module("conan", ConanFile=ConanFile)
module("conan.tools")
module("conan.tools.build", check_min_cppstd=lambda recipe, standard: None)
module("conan.tools.cmake", CMake=CMake, CMakeDeps=CMakeDeps, CMakeToolchain=CMakeToolchain,
       cmake_layout=lambda recipe: None)
module("conan.tools.files", copy=copy, load=lambda recipe, path: Path(path).read_text())

sys.dont_write_bytecode = True
spec = importlib.util.spec_from_file_location("conanfile", recipe_file)
recipe_module = importlib.util.module_from_spec(spec)
spec.loader.exec_module(recipe_module)
recipe = recipe_module.OstraParameters()
source = Path(recipe.source_folder)

recipe.set_version()
recipe.requirements()
recipe.validate()
recipe.layout()
# Only what is exported is there when it is built.
exported = Path(build_folder).parent / "exported"
for pattern in recipe.exports_sources:
    top = source / pattern.split("*")[0]
    files = source.glob(pattern) if "*.md" in pattern else [top] if top.is_file() else top.rglob("*")
    for file in files:
        if file.is_file():
            copy_of = exported / file.relative_to(source)
            copy_of.parent.mkdir(parents=True, exist_ok=True)
            copy_of.write_bytes(file.read_bytes())
recipe.source_folder = str(exported)
recipe.generate()
recipe.build()
recipe.package()
recipe.package_info()

print(recipe.name, recipe.version)
for name, component in sorted(recipe.cpp_info.components.items()):
    for folder in component.builddirs:
        assert (Path(package_folder) / folder).is_dir(), folder
    for library in component.libs:
        assert list((Path(package_folder) / "lib").glob(f"lib{library}.*")), library
    print(name, *component.libs, *component.requires, component.properties["pkg_config_name"])
