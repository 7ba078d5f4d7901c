#!/usr/bin/env python3
"""Gives the program inputs that are made to exhaust it, of a size that is told, and says what each took.

Every command has to end with a status from 0 to 3, with processor time and memory in proportion to the size of its input.

    hostile.py PROGRAM [--size MB] [--only WORD]
"""

import argparse
import os
import resource
import subprocess
import sys
import tempfile

# Of processor time and memory of one command: what it takes in any case, and more for each MB of its input.
SECONDS, SECONDS_PER_MB = 2, 1
MEGABYTES, MEGABYTES_PER_MB = 60, 30

MODEL_COMMANDS = [['check', 'INPUT'], ['report', 'INPUT'], ['validate', 'INPUT'], ['classify', 'INPUT'], ['units', 'INPUT'],
                  ['guid', 'check', 'INPUT'], ['convert', 'INPUT', '-o', 'out.ifc', '--to', '4', '--guids', 'repair']]
DOCUMENT_COMMANDS = [['resources', 'check', 'INPUT', '--kind', 'custom-mapping']]


def model(*statements):
    """A model of statements, and of a last one repeated or counted up until the size is reached."""
    def text(size):
        head = ("ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                "FILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n")
        parts, length = [head], len(head)
        for statement in statements:
            if isinstance(statement, str):
                parts.append(statement)
                length += len(statement)
        repeated = statements[-1]
        number = 100
        while not isinstance(repeated, str) and length < size:
            parts.append(repeated(number))
            length += len(parts[-1])
            number += 1
        parts.append('ENDSEC;\nEND-ISO-10303-21;\n')
        return ''.join(parts)
    return text


def filled(before, piece, after):
    return lambda size: before + piece * (size // len(piece)) + after


def in_model(before, piece, after):
    body = filled(before, piece, after)
    return lambda size: model(body(size))(0)


def entities(size):
    """Each stands for ten of the one before."""
    lines = ''.join(f'<!ENTITY e{n} "{f"&e{n - 1};" * 10}">' for n in range(1, 12))
    return f'<!DOCTYPE a [<!ENTITY e0 "{"x" * (size // 2)}">{lines}]><a>&e11;</a>'


LABEL = "IFCLABEL('x')"
INPUTS = {
    'lists that are never closed': (MODEL_COMMANDS, in_model('#1=IFCWALL(', '(', ';\n')),
    'lists nested without end': (MODEL_COMMANDS, in_model('#1=IFCPOINT', '((', ';\n#2=IFCPOINT()));\n')),
    'strings that are never closed': (MODEL_COMMANDS, model(lambda n: f"#{n}=IFCWALL('a\n,$;\n")),
    'comments that are never closed': (MODEL_COMMANDS, in_model('', '/*\n', '')),
    'quotation marks': (MODEL_COMMANDS, in_model("#1=IFCWALL(", "'", ');\n')),
    'broken directives in a string': (MODEL_COMMANDS, in_model("#1=IFCLABEL('", '\\X2\\0', "');\n")),
    'one instance name': (MODEL_COMMANDS, model(lambda _: "#1=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n")),
    'keywords of every kind': (MODEL_COMMANDS, model(lambda n: f'#{n}=X{n}();\n')),
    'one instance referred to by one': (MODEL_COMMANDS, in_model("#1=IFCWALL('',$,$,$,$,$,$,$);\n#2=IFCRELAGGREGATES('',$,$,$,#1,(#1",
                                                                 ',#1', '));\n')),
    'one instance referred to by all': (MODEL_COMMANDS, model(
        "#1=IFCOWNERHISTORY($,$,$,$,$,$,$,0);\n", lambda n: f"#{n}=IFCWALL('0',#1,$,$,$,$,$,$);\n")),
    'placements in a chain': (MODEL_COMMANDS, model(lambda n: f'#{n}=IFCLOCALPLACEMENT(#{n + 1},$);\n')),
    'units in a chain': (MODEL_COMMANDS + [['convert', 'INPUT', '-o', 'out.ifc', '--length-unit', 'INCH']], model(
        "#1=IFCUNITASSIGNMENT((#101));\n#2=IFCPROJECT('0',$,$,$,$,$,$,(),#1);\n",
        lambda n: f"#{n}=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(1.),#{n + 1});\n" if n % 2 == 0 else
        f"#{n}=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'x',#{n + 1});\n")),
    'properties within properties, each twice': (MODEL_COMMANDS, model(
        "#1=IFCPROPERTYSET('0',$,'Pset_WallCommon',$,(#100,#101));\n",
        lambda n: f"#{n}=IFCCOMPLEXPROPERTY('p{n}',$,'u',(#{n + 1},#{n + 2}));\n")),
    'aggregates of aggregates': (MODEL_COMMANDS, model(
        lambda n: f"#{n}=IFCRELAGGREGATES('0',$,$,$,#{n},(#{n},#{n + 1}));\n")),
    'entities that stand for ten others': (DOCUMENT_COMMANDS, entities),
    'elements within elements': (DOCUMENT_COMMANDS, filled('', '<a>', '')),
    'attributes of one element': (DOCUMENT_COMMANDS, lambda size: '<a ' + ''.join(f'b{n}="" ' for n in range(size // 10)) + '/>'),
    'names of elements': (DOCUMENT_COMMANDS, lambda size: '<a>' + ''.join(f'<b{n}/>' for n in range(size // 9)) + '</a>'),
    'names of attributes': (DOCUMENT_COMMANDS,
                            lambda size: '<a>' + ''.join(f'<a b{n}=""/>' for n in range(size // 14)) + '</a>'),
    'text of one element': (DOCUMENT_COMMANDS, filled('<a>', 'x', '</a>')),
    'lists in a configuration': ([['options', '--config', 'INPUT']], filled('{"settings":', '[', '')),
}


def run(program, words, folder):
    """Status, processor seconds, most memory in MB, the last line that is told."""
    with tempfile.TemporaryFile() as told:
        process = subprocess.Popen([program, *words], cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=told, env={'PATH': '/usr/bin:/bin', 'LANG': 'C.UTF-8'},
                                   preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (600, 600)))
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = 0
        told.seek(0)
        last = told.read()[-200:].decode(errors='replace').strip().splitlines()[-1:] or ['']
    status = -os.WTERMSIG(status) if os.WIFSIGNALED(status) else os.WEXITSTATUS(status)
    return status, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, last[0]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('program', type=os.path.abspath)
    parser.add_argument('--size', type=float, default=1, metavar='MB', help='of each input')
    parser.add_argument('--only', default='', metavar='WORD', help='inputs that name the word')
    options = parser.parse_args()

    cases, findings = 0, 0
    with tempfile.TemporaryDirectory() as folder:
        for name, (commands, make) in INPUTS.items():
            if options.only not in name:
                continue
            with open(os.path.join(folder, 'input'), 'w', encoding='utf-8') as file:
                file.write(make(int(options.size * 1e6)))
            megabytes = os.path.getsize(file.name) / 1e6
            for words in commands:
                words = ['input' if word == 'INPUT' else word for word in words]
                status, seconds, memory, last = run(options.program, words, folder)
                cases += 1
                isGood = (0 <= status <= 3 and seconds <= SECONDS + SECONDS_PER_MB * megabytes
                          and memory <= MEGABYTES + MEGABYTES_PER_MB * megabytes)
                findings += not isGood
                print(f'{"" if isGood else "FOUND "}{name}: velkor {" ".join(words)}: status {status}, {seconds:.2f} s, '
                      f'{memory:.0f} MB{"" if isGood else ": " + last}', flush=True)
    print(f'{cases} cases, {findings} findings')
    return 1 if findings or not cases else 0


if __name__ == '__main__':
    sys.exit(main())
