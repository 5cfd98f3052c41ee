#!/usr/bin/env python3
"""measure PROGRAM FOLDER: prints what the program costs, measured on the largest scenes and on the village.

A scene is a folder with all that a run needs, a copy of the program among it. Wall time is a ratio: the program and a
cp of its output run by turns, each after its last output was removed, and the median of one is divided by the median
of the other. Instructions are counted by callgrind. Memory is the largest resident set, less that of a run without
objects. Ends with 1 when more instructions are needed than there may be.
"""
import os
import re
import shutil
import statistics
import subprocess
import sys
import time

import scenes

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'examples')
SECONDS_OF_RUNS = 5
MANY = 500
MIB = 1 << 20


class Scene:
    def __init__(self, program, folder, output):
        self.folder, self.output = folder, os.path.join(folder, output)
        self.program = shutil.copy(program, folder)

    @classmethod
    def of_design(cls, program, folder, design):
        shutil.rmtree(folder, ignore_errors=True)
        shutil.copytree(os.path.join(EXAMPLES, 'village', 'appl'), os.path.join(folder, 'appl'))
        for name, content in (('scene.mr2', design),
                              ('MarlOgl.dat', b'scene.mr2\nscene.ogl\n255255255\n224224224\n')):
            with open(os.path.join(folder, name), 'wb') as f:
                f.write(content)
        return cls(program, folder, 'scene.ogl')

    @classmethod
    def of_example(cls, program, folder, example):
        shutil.rmtree(folder, ignore_errors=True)
        shutil.copytree(os.path.join(EXAMPLES, example), folder)
        return cls(program, folder, example + '.ogl')

    def run(self, *prefix, options=()):
        """Runs the program, behind another one where `prefix` has one; returns what went to standard error."""
        command = [*prefix, self.program, *options]
        return subprocess.run(command, cwd=self.folder, check=True, capture_output=True, text=True).stderr


def remove(path):
    if os.path.exists(path):
        os.remove(path)


def seconds(command, output):
    remove(output)
    start = time.perf_counter()
    process = os.posix_spawn(command[0], command, os.environ)
    status = os.waitpid(process, 0)[1]
    taken = time.perf_counter() - start
    if status != 0:
        raise SystemExit('failed: ' + ' '.join(command))
    return taken


def against_copy(scene):
    """Median wall time of the program, divided by that of a cp of its output."""
    copy = scene.output + '.copy'
    copying = [shutil.which('cp'), scene.output, copy]
    converted, copied = [], []
    os.chdir(scene.folder)
    while sum(converted + copied) < SECONDS_OF_RUNS:
        converted.append(seconds([scene.program], scene.output))
        copied.append(seconds(copying, copy))
    remove(copy)
    return statistics.median(converted) / statistics.median(copied)


def instructions(scene, *options):
    report = scene.run('valgrind', '--tool=callgrind', '--callgrind-out-file=' + os.devnull, options=options)
    return int(re.search(r'Collected : (\d+)', report).group(1))


def peak_memory(scene):
    return int(scene.run('time', '-f', '%M').splitlines()[-1]) * 1024


def of_village(program, folder, files=0):
    """The village, in a folder with so many other files."""
    scene = Scene.of_example(program, folder, 'village')
    for number in range(files):
        open(os.path.join(folder, 'other%d' % number), 'w').close()
    return scene


def print_table(program, folder):
    """Returns the bounds on instructions that were missed. Wall time depends on what else the machine does."""
    def of_design(name, objects, count=scenes.MOST_OBJECTS):
        return Scene.of_design(program, os.path.join(folder, name), scenes.design(objects, count))

    rows = (
        ('largest: 70 textured envelopes of 20 corners, both sides, with baskets',
         of_design('largest', scenes.envelope), 24, 1.25),
        ('70 extrusions of 20 corners with textured n-gon caps',
         of_design('extrusions', scenes.extrusion), 7, 1.0),
        ('the village', of_village(program, os.path.join(folder, 'village')), 1.2, 0.65),
        ('the village, in a folder with 2,000 other files',
         of_village(program, os.path.join(folder, 'full'), files=2000), 1.2, 0.65),
    )
    tables = peak_memory(of_design('nothing', scenes.envelope, 0))
    missed = []

    def within(name, count, most):
        if count / 1e6 > most:
            missed.append('%s: %.2f million instructions are more than %s' % (name, count / 1e6, most))
        return '%.2f million (%s)' % (count / 1e6, most)

    print('| scene | output | instructions (at most) | wall, against `cp` of the output (at most) | '
          'memory above the tables |')
    print('| --- | --- | --- | --- | --- |')
    for name, scene, most_millions, most_wall in rows:
        scene.run()
        print('| %s | %.1f MB | %s | %.2f (%s) | %.1f MiB |' % (
            name, os.path.getsize(scene.output) / 1e6, within(name, instructions(scene), most_millions),
            against_copy(scene), most_wall, (peak_memory(scene) - tables) / MIB))
    count = instructions(rows[2][1], '--version')
    print('| the program with `--version` | | %s | | |' % within('--version', count, 0.15))
    return missed


def print_many(program, folder):
    """Many small folders, a process each, as a script converts them: folders a second, and those of cp."""
    folders = []
    for number in range(MANY):
        folders.append(os.path.join(folder, 'many', str(number)))
        of_village(program, folders[-1])
    names = '\0'.join(folders).encode()

    def per_second(command):
        for name in folders:
            remove(os.path.join(name, 'made.ogl' if 'cp' in command else 'village.ogl'))
        start = time.perf_counter()
        subprocess.run(['xargs', '-0', '-P', str(os.cpu_count()), '-I{}', 'sh', '-c', command, 'sh', '{}'],
                       input=names, check=True)
        return MANY / (time.perf_counter() - start)

    converted, copied = [], []
    for _ in range(5):
        converted.append(per_second('cd "$1" && exec ./MarlOgl'))
        copied.append(per_second('cd "$1" && exec cp village.ogl made.ogl'))
    converted, copied = statistics.median(converted), statistics.median(copied)
    print('\n%d villages, one process a folder by `xargs -P %d`: %d folders a second; `cp` of the same outputs: %d'
          % (MANY, os.cpu_count(), converted, copied))


def print_growth(program, folder):
    print('\n| envelopes | instructions | for each further one |')
    print('| --- | --- | --- |')
    last_number, last_count = 0, 0
    for number in (0, 1, 2, 5, 10, 20, 40, scenes.MOST_OBJECTS):
        design = scenes.design(scenes.envelope, number)
        count = instructions(Scene.of_design(program, os.path.join(folder, 'growing'), design))
        further = '%d' % round((count - last_count) / (number - last_number)) if number else ''
        print('| %d | %d | %s |' % (number, count, further))
        last_number, last_count = number, count


if __name__ == '__main__':
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    paths = [os.path.abspath(argument) for argument in sys.argv[1:]]
    missed = print_table(*paths)
    print_many(*paths)
    print_growth(*paths)
    for bound in missed:
        print('missed: ' + bound, file=sys.stderr)
    sys.exit(1 if missed else 0)
