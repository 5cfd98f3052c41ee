#!/usr/bin/env python3
"""compiled.py COMPILER...: takes the object from build/release where that was compiled with the same command, but for the
folders and -Werror; else compiles. Runs below build/documents/build, for script/documents, which lists the commands."""
import os
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
RELEASE, COPY = ROOT + '/build/release', ROOT + '/build/documents'


def meant(command, build, source):
    """What a command says, whatever the folders. Where it writes is said in the terms of the generator."""
    text = '\n'.join(command).replace(build, 'BUILD').replace(source, 'SOURCE')
    words = [word for word in text.split('\n') if word not in ('-MD', '-Werror')]
    return ' '.join(word for last, word in zip([''] + words, words) if not {'-MT', '-MF', '-o'} & {last, word})


def main():
    compiler = sys.argv[1:]
    if '-o' in compiler:
        to = os.path.abspath(compiler[compiler.index('-o') + 1])
        name = os.path.relpath(to, COPY + '/build')
        with open(COPY + '/commands') as commands:
            if f'{name}\t{meant(compiler, COPY + "/build", COPY)}\n' in commands:
                with open(f'{RELEASE}/{name}', 'rb') as made, open(to, 'wb') as taken:
                    # A header is compiled for what is not taken from there, and that does without.
                    taken.write(b'' if name.endswith('.gch') else made.read())
                return
    os.execvp(compiler[0], compiler)


if __name__ == '__main__':
    main()
