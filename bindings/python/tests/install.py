"""Installs the package with pip, as a user without a network does, and runs the examples with it
and the library that the system finds. Takes a folder to work in."""

import os
import pathlib
import shutil
import subprocess
import sys
import venv

PACKAGE = pathlib.Path(__file__).resolve().parents[1]
EXAMPLES = PACKAGE.parents[1] / "examples/python"


def main(folder: pathlib.Path) -> None:
    for name in ("PYTHONPATH", "QUORVEL_LIBRARY"):  # of who runs this
        os.environ.pop(name, None)
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(PACKAGE, folder / "source")  # pip builds in there
    venv.create(folder / "venv", system_site_packages=True)
    python = folder / "venv/bin/python"
    offline = ["--no-build-isolation", "--no-index", "--no-deps"]
    subprocess.run([python, "-m", "pip", "install", "-q", *offline, folder / "source"], check=True)

    for example in sorted(EXAMPLES.glob("*.py")):
        subprocess.run([python, example], check=True)
    told = "import quorvel, importlib.resources as r; print(r.files(quorvel) / 'py.typed')"
    typed = subprocess.check_output([python, "-c", told], text=True).strip()
    assert pathlib.Path(typed).is_file() and typed.startswith(f"{folder}/venv"), typed

    nowhere = {**os.environ, "LD_LIBRARY_PATH": "/nowhere"}
    failed = subprocess.run(
        [python, "-c", "import quorvel"], env=nowhere, stderr=subprocess.PIPE, text=True
    )
    last = failed.stderr.splitlines()[-1]
    assert last.startswith("ImportError: Quorvel's C library cannot be loaded"), failed.stderr
    assert last.endswith("install it, or name its file in QUORVEL_LIBRARY"), failed.stderr


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve())
