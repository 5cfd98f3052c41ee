#!/usr/bin/env python3
"""measure PROGRAM FOLDER: prints what the program costs, measured on the largest scenes and on the village.

A scene is a folder with all that a run needs, a copy of the program among it. Wall time is a ratio: the program and a
cp of its output run by turns, each after its last output was removed, and the median of one is divided by the median
of the other. Instructions are counted by callgrind. Memory is the largest resident set, less that of a run without
objects.
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

    def run(self, *prefix):
        """Runs the program, behind another one where `prefix` has one; returns what went to standard error."""
        command = [*prefix, self.program]
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


def instructions(scene):
    report = scene.run('valgrind', '--tool=callgrind', '--callgrind-out-file=' + os.devnull)
    return int(re.search(r'Collected : (\d+)', report).group(1))


def peak_memory(scene):
    return int(scene.run('time', '-f', '%M').splitlines()[-1]) * 1024


def print_table(program, folder):
    """Returns the bounds that were missed."""
    def of_design(name, objects, count=scenes.MOST_OBJECTS):
        return Scene.of_design(program, os.path.join(folder, name), scenes.design(objects, count))

    rows = (
        ('largest: 70 textured envelopes of 20 corners, both sides, with baskets',
         of_design('largest', scenes.envelope), 2.0, 4, None),
        ('70 extrusions of 20 corners with textured n-gon caps',
         of_design('extrusions', scenes.extrusion), 1.5, 6, None),
        ('the village', Scene.of_example(program, os.path.join(folder, 'village'), 'village'), 0.6, None, 2.5),
    )
    tables = peak_memory(of_design('nothing', scenes.envelope, 0))
    missed = []

    print('| scene | output | wall, against `cp` of it | instructions | per output byte | memory above the tables |')
    print('| --- | --- | --- | --- | --- | --- |')
    for name, scene, most_wall, most_per_byte, most_millions in rows:
        scene.run()
        size, count = os.path.getsize(scene.output), instructions(scene)
        figures = (
            ('%.2f', against_copy(scene), most_wall),
            ('%.1f million', count / 1e6, most_millions),
            ('%.1f', count / size, most_per_byte),
            ('%.1f MiB', (peak_memory(scene) - tables) / MIB, 4),
        )
        cells = [form % figure + (' (at most %s)' % most if most else '') for form, figure, most in figures]
        print('| ' + ' | '.join([name, '%.1f MB' % (size / 1e6), *cells]) + ' |')
        missed += ['%s: %s is more than %s' % (name, form % figure, most)
                   for form, figure, most in figures if most and figure > most]
    return missed


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
    print_growth(*paths)
    for bound in missed:
        print('missed: ' + bound, file=sys.stderr)
    sys.exit(1 if missed else 0)
