"""Builds the module with CMake: the library is linked in, so that the package needs no other."""

import pathlib
import re
import shutil
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROJECT = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
VERSION = re.search(r"project\(ZQ7Standard VERSION ([\d.]+)", PROJECT)[1]


class BuildWithCMake(build_ext):
    """Builds with the CMake project in place of the one source that setuptools could compile."""

    def build_extension(self, extension):
        # Beside the other builds, not among the sources.
        build = ROOT / "build/pip" / sys.implementation.cache_tag / "release"
        settings = {
            "CMAKE_BUILD_TYPE": "Release",
            "BUILD_SHARED_LIBS": "OFF",
            "Python_EXECUTABLE": sys.executable,
            "ZQ7STANDARD_BUILD_C": "OFF",
            "ZQ7STANDARD_BUILD_PYTHON": "ON",
            "ZQ7STANDARD_BUILD_TOOLS": "OFF",
            "ZQ7STANDARD_INSTALL": "OFF",
        }
        given = [f"-D{name}={value}" for name, value in settings.items()]
        subprocess.run(["cmake", "-G", "Ninja", "-S", ROOT, "-B", build, *given], check=True)
        parallel = [] if self.parallel is None else [f"-j{self.parallel}"]
        subprocess.run(["cmake", "--build", build, "--target", "zq7_python", *parallel], check=True)
        target = pathlib.Path(self.get_ext_fullpath(extension.name)).resolve()
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(build / "bindings/python/zq7standard" / target.name, target)


setup(
    version=VERSION,
    ext_modules=[Extension("zq7standard._native", sources=[])],
    cmdclass={"build_ext": BuildWithCMake},
)
