#!/usr/bin/env python3
"""Runs every command of the program on small inputs while allocations, reads and writes fail and inputs are damaged.

Each case has to end in time with a status from 0 to 3. Where memory, a read or a write fails the answer is that of the
undisturbed run, or one line says why there is none, with status 3. Files that are written are whole or not there, and
nothing else is left beside them.

    campaign.py PROGRAM SHIM RESOURCES MODEL [--short] [--every N] [--only WORD]
"""

import argparse
import concurrent.futures
import gzip
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import zipfile

SECONDS = 10
MAPPED = 2 << 20  # a model of this size is mapped, not read

RESOURCES = {
    'ifc/VersionMapping.xml': '''<IfcVersionMapping><Version from="2x3" to="4">
<Mapping fromEntity="IFCACTIONREQUEST" fromProperty="REQUESTID" toProperty="IDENTIFICATION"/>
<Deprecation entity="IFCBEZIERCURVE"/>
</Version></IfcVersionMapping>''',
    'ifcCustomMapping/CustomMapping.xml': '''<IfcMapping>
<CustomMapping fromEntity="Pset_WallCommon" fromProperty="FireRating" toEntity="Fire" toProperty="Class" scope="Wall"/>
</IfcMapping>''',
    'IfcPLMAttributesMapping/PLMAttributes.xml': '''<IfcPLMMappingAttr><PLMAttrIncluded id="Wall">
<fromAttributes plmProp="V_Fire" propSetName="Pset_WallCommon" ifcProp="FireRating" propExpose="Both"/>
</PLMAttrIncluded><IfcPLMMapping Name="Wall"><PLMAttrInclude IncludedId="Wall"/></IfcPLMMapping></IfcPLMMappingAttr>''',
    'xcad/AECCorrespondences.xml': '''<AECCorrespondences>
<NeutralID Name="ExternalWall">
<IFC Name="IfcWall" Priority="20">
<Condition Attribute="IsExternal" Value="TRUE"/>
</IFC>
<NORVEL Name="Building_Wall" Priority="20"/>
</NeutralID>
<NeutralID Name="Window">
<IFC Name="IfcWindow" Priority="10"/>
<NORVEL Name="Building_Window" Priority="10"/>
</NeutralID>
</AECCorrespondences>''',
    'IFCAttributes/IFCAttributes.xml': '''<IFCAttributes><Level ID="General">
<AttributeID Name="Mark" Entity="IfcWall" PropertySet="" Value="Tag"/></Level></IFCAttributes>''',
}
SETS = 'runtime/resources/standard/IFCPsetQset'
CONFIGURATION = '''{ "settings": { "IFC": { "FullyExposed": 0 } }, // a comment
"conversion_options": { "IFC_Disable_Version_Mapping": "no", "Other": "1" },
"setup_data": { "QORAECDataExchangeResources|IFCCustomMapping": "standard/ifcCustomMapping/CustomMapping.xml" },
"default_collection_standard": ["standard"], "runtime_view": ["runtime"], "custom_property_sets": ["Acme"],
"knowledge_types": [ { "name": "Wall", "kind": "knowledge" } ] }'''

MODEL_COMMANDS = [
    ['report', 'model.ifc'], ['report', 'model.ifc', '--format', 'json'], ['check', 'model.ifc'],
    ['check', 'model.ifc', '--format', 'json'], ['validate', 'model.ifc'], ['classify', 'model.ifc'],
    ['classify', 'model.ifc', '--format', 'csv'], ['guid', 'check', 'model.ifc'], ['units', 'model.ifc'],
    ['units', 'model.ifc', '--format', 'json'],
]
ARCHIVE_COMMANDS = [['units', 'model.ifczip'], ['units', 'model.gz']]
VERSION_MAPPING = ['map', 'version', '--from', '2x3', '--to', '4', 'IfcActionRequest', 'RequestID']
CUSTOM_MAPPING = ['map', 'custom', 'Pset_WallCommon', 'FireRating', '--scope', 'Wall_Import']
PLM_MAPPING = ['map', 'plm', 'Wall', 'V_Fire']
CONVERT_COMMANDS = [
    ['convert', 'model.ifc', '-o', 'out.ifc', '--to', '4'],
    ['convert', 'model.ifc', '-o', 'out.ifc', '--length-unit', 'INCH', '--guids', 'repair', '--guid-map', 'out.csv',
     '--report', 'out.json'],
    ['convert', 'model.ifc', '-o', 'out.ifc', '--to', '4', '--custom-mapping', 'import', '--plm-attributes'],
    ['convert', 'model.ifc', '-o', '-', '--to', '4'],
    ['convert', 'model.gz', '-o', 'out.ifczip', '--length-unit', 'METRE'],
    ['convert', 'model.ifczip', '-o', 'out.gz', '--to', '4'],
]
OTHER_COMMANDS = [
    ['--version'], ['map', '--help'], ['rapport'], ['report'], ['report', 'missing.ifc'],
    ['guid', 'new'], ['guid', 'from-plm'], ['guid', 'expand', '0$WU4A9R19$vKWO$AdOnKA'],
    ['guid', 'compress', '3f81e10a-25b0-49ff-9520-63f2a763150a'],
    ['dictionary', 'list'], ['dictionary', 'show', '2x3', '--declarations'],
    ['dictionary', 'entity', '4', 'IfcWall'], ['dictionary', 'entity', '4', 'IfcWal'],
    ['dictionary', 'rule', '4', 'IfcWall.CorrectPredefinedType'], ['dictionary', 'rule', '4', 'IfcWal.WR1'],
    ['dictionary', 'diff', '4x2', '4'], ['dictionary', 'diff', '2x3', '4', '--as-mapping'],
    VERSION_MAPPING,
    ['map', 'version', '--from', '2x3', '--to', '4', '--deprecated'],
    CUSTOM_MAPPING, PLM_MAPPING, ['options'], ['options', '--list-variables'], ['resources'],
    ['resources', 'check'], ['resources', 'check', '--format', 'json'],
]
# What is not answered with status 0 when nothing fails.
STATUSES = {'rapport': 2, 'report': 2, 'report missing.ifc': 3, 'dictionary entity 4 IfcWal': 1, 'dictionary rule 4 IfcWal.WR1': 1,
            'classify model.ifc': 1, 'classify model.ifc --format csv': 1}
# Commands that make trees of JSON. Those allocate when they are destroyed, which ends a process that goes on without
# memory.
JSON_TREES = [words for words in MODEL_COMMANDS + CONVERT_COMMANDS + OTHER_COMMANDS
              if 'json' in words or words[0] in ('map', 'dictionary', 'options', 'convert')
              or words[0] == 'guid' and words[1] != 'check']
# Which commands read a kind of input.
INPUTS = {
    'model.ifc': MODEL_COMMANDS[::2] + CONVERT_COMMANDS[:4:2],
    'model.ifczip': ARCHIVE_COMMANDS[:1],
    'model.gz': ARCHIVE_COMMANDS[1:],
    'velkor.json': [['options']],
    'standard/ifc/VersionMapping.xml': [VERSION_MAPPING],
    'standard/ifcCustomMapping/CustomMapping.xml': [CUSTOM_MAPPING],
    'standard/IfcPLMAttributesMapping/PLMAttributes.xml': [PLM_MAPPING],
    'standard/xcad/AECCorrespondences.xml': [['classify', 'model.ifc']],
    'standard/IFCAttributes/IFCAttributes.xml': [],
    SETS + '/Pset_WallCommon.xml': [['validate', 'model.ifc']],
}


class Server:
    """The program, started once under the shim, run as often as asked for in a folder of its own."""

    def __init__(self, tools, words):
        self.words = words
        self.folder = tempfile.mkdtemp(prefix='velkor-faults-')
        prepare(self.folder, tools)
        self.out = tempfile.TemporaryFile()
        self.err = tempfile.TemporaryFile()
        orders, self.orders = os.pipe()
        self.answers, answers = os.pipe()
        environment = {'PATH': '/usr/bin:/bin', 'LANG': 'C.UTF-8', 'VELKOR_CONFIG': 'velkor.json',
                       'LD_PRELOAD': tools.shim, 'VELKOR_FAULTS': f'{orders}:{answers}'}
        with open(os.path.join(self.folder, 'words.txt'), 'rb') as words_file:
            self.process = subprocess.Popen([tools.program, *words], cwd=self.folder, stdin=words_file, stdout=self.out,
                                            stderr=self.err, env=environment, pass_fds=(orders, answers))
        os.close(orders)
        os.close(answers)
        self.reply = os.fdopen(self.answers, 'r')
        self.there = set(os.listdir(self.folder))

    def run(self, allocation=0, which='once', read=0, write=0, mode='once'):
        for name in self.made():
            os.remove(self.path(name))
        for output in (self.out, self.err):
            os.ftruncate(output.fileno(), 0)
            os.lseek(output.fileno(), 0, os.SEEK_SET)
        os.write(self.orders, f'{allocation} {which} {read} {write} {mode} {SECONDS}\n'.encode())
        status, *counts = map(int, self.reply.readline().split())
        files = {}
        for name in self.made():
            with open(self.path(name), 'rb') as file:
                files[name] = file.read()
        return Outcome(status, self.contents(self.out), self.contents(self.err), counts, files)

    def made(self):
        return set(os.listdir(self.folder)) - self.there

    @staticmethod
    def contents(output):
        return os.pread(output.fileno(), os.fstat(output.fileno()).st_size, 0)

    def path(self, name):
        return os.path.join(self.folder, name)

    def close(self):
        os.close(self.orders)
        self.reply.close()
        self.process.wait()
        shutil.rmtree(self.folder)


class Outcome:
    def __init__(self, status, out, err, counts=(0, 0, 0), files=None):
        self.signal = os.WTERMSIG(status) if os.WIFSIGNALED(status) else 0
        self.status = os.WEXITSTATUS(status)
        # New identifiers are new each time, and so is the time that something took.
        out = re.sub(rb'^[0-9A-Za-z_$]{22}$', b'ID', out)
        self.out = re.sub(rb'(, |"seconds": )[0-9][0-9.e-]*( s\n|,?\n)', rb'\1TIME\2', out)
        self.err, self.files = err, files or {}
        self.allocations, self.reads, self.writes = counts

    def same(self, other):
        return (self.signal, self.status, self.out, self.err, self.files) == (
            other.signal, other.status, other.out, other.err, other.files)

    def whole(self, other):
        """Whether there are no files but those of the other outcome."""
        return all(other.files.get(name) == data for name, data in self.files.items())

    def exhausted(self, right=None):
        return (self.signal == 0 and self.status == 3 and self.err.endswith(b'velkor: out of memory\n')
                and self.whole(right or self))

    def ended(self):
        return self.signal == 0 and self.status <= 3

    def __str__(self):
        how = signal.Signals(self.signal).name if self.signal else f'status {self.status}'
        if self.signal == signal.SIGALRM:
            how = f'not done after {SECONDS} s'
        last = self.err.decode(errors='replace').strip().splitlines()[-1:] or ['']
        return f'{how}; {last[0][:150]}'


def prepare(folder, tools):
    for name, text in RESOURCES.items():
        write(os.path.join(folder, 'standard', name), text.encode())
    # What the model has.
    for name in ('Building', 'BuildingStorey', 'Door', 'Slab', 'Space', 'Wall', 'Window'):
        name = f'Pset_{name}Common.xml'
        source = os.path.join(tools.resources, 'runtime/IFC2X3/resources/standard/IFCPsetQset', name)
        with open(source, 'rb') as file:
            write(os.path.join(folder, SETS, name), file.read())
    with open(tools.model, 'rb') as file:
        text = file.read()
    write(os.path.join(folder, 'model.ifc'), text)
    write(os.path.join(folder, 'model.gz'), gzip.compress(text))
    with zipfile.ZipFile(os.path.join(folder, 'model.ifczip'), 'w', zipfile.ZIP_DEFLATED) as archive:
        archive.writestr('model.ifc', text)
    write(os.path.join(folder, 'velkor.json'), CONFIGURATION.encode())
    write(os.path.join(folder, 'words.txt'), b'DOOR-0815\n')


def write(path, data):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'wb') as file:
        file.write(data)


def sample(count, budget, tools):
    """Numbers from 1 to count: all, or as many as the budget allows, spread evenly."""
    step = max(tools.every, -(-count // budget) if tools.short else 1)
    return range(1 + step // 2 if step > 1 else 1, count + 1, step)


class Findings:
    def __init__(self):
        self.cases = 0
        self.texts = []

    def judge(self, isGood, words, case, outcome):
        self.cases += 1
        if not isGood:
            self.texts.append(f'velkor {" ".join(words)}: {case}: {outcome}')


def failing_allocations(tools, words):
    findings, server = Findings(), Server(tools, words)
    right = server.run()
    findings.judge(right.signal == 0 and right.status == STATUSES.get(' '.join(words), 0), words, 'undisturbed', right)
    for which in ('once', 'on'):
        for number in sample(right.allocations, 60, tools):
            outcome = server.run(number, which)
            findings.judge(outcome.exhausted(right) or outcome.same(right), words,
                           f'allocation {number} fails {which}', outcome)
    # What a failure leaves behind in a process that goes on. The first few are those of the standard streams, which
    # cannot be used afterwards.
    for number in sample(right.allocations, 60, tools):
        if number <= 3:
            continue
        outcome = server.run(number, mode='again')
        ended = words in JSON_TREES and outcome.signal == signal.SIGABRT
        findings.judge(ended or outcome.same(right), words, f'after allocation {number} failed', outcome)
    server.close()
    return findings


def failing_load(tools, words):
    """Allocations of the start, before main() begins, in processes of their own."""
    findings = Findings()
    for number in sample(120, 12, tools):
        environment = {'PATH': '/usr/bin:/bin', 'LD_PRELOAD': tools.shim, 'VELKOR_FAULTS_AT': str(number)}
        done = subprocess.run([tools.program, *words], env=environment, capture_output=True)
        status = -done.returncode if done.returncode < 0 else done.returncode << 8
        outcome = Outcome(status, done.stdout, done.stderr)
        findings.judge(outcome.exhausted(), words, f'allocation {number} of the process fails on', outcome)
    return findings


def failed(outcome, right):
    """Whether a reason is told why there is no answer, and there is no file that is not right."""
    return outcome.signal == 0 and outcome.status == 3 and outcome.err and outcome.whole(right)


def failing_reads(tools, words):
    findings, server = Findings(), Server(tools, words)
    right = server.run()
    for number in sample(right.reads, 30, tools):
        outcome = server.run(read=number)
        findings.judge(outcome.same(right) or failed(outcome, right), words, f'read {number} fails', outcome)
    server.close()
    return findings


def failing_writes(tools, words):
    findings, server = Findings(), Server(tools, words)
    right = server.run()
    findings.judge(right.writes > 0 or right.err, words, 'nothing is written', right)
    for number in sample(right.writes, 40, tools):
        outcome = server.run(write=number)
        # No write is to be done without: what was not flushed may be gone tomorrow.
        findings.judge(failed(outcome, right), words, f'write {number} fails', outcome)
    server.close()
    return findings


def damaged_input(tools, name, words):
    findings, server = Findings(), Server(tools, words)
    path = server.path(name)
    with open(path, 'rb') as file:
        whole = file.read()
    for length in sample(len(whole), 40, tools):
        write(path, whole[:length - 1])
        outcome = server.run()
        findings.judge(outcome.ended(), words, f'{name} cut after {length - 1} bytes', outcome)
    for bit in sample(len(whole) * 8, 80, tools):
        damaged = bytearray(whole)
        damaged[(bit - 1) // 8] ^= 1 << (bit - 1) % 8
        write(path, damaged)
        outcome = server.run()
        findings.judge(outcome.ended(), words, f'{name} with bit {bit - 1} flipped', outcome)
    server.close()
    return findings


def truncated_mapping(tools, words):
    findings, server = Findings(), Server(tools, words)
    with open(server.path('model.ifc'), 'ab') as file:
        file.write(b' ' * MAPPED)
    outcome = server.run(mode='cut')
    isTold = outcome.status == 3 and outcome.err.endswith(b'model.ifc: was truncated while it was read\n')
    findings.judge(outcome.signal == 0 and isTold and not outcome.files, words, 'file cut while it is mapped', outcome)
    server.close()
    return findings


def jobs(tools):
    yield failing_load, (['--version'],)
    for words in MODEL_COMMANDS + CONVERT_COMMANDS[:3]:
        yield truncated_mapping, (words,)
    for words in MODEL_COMMANDS + ARCHIVE_COMMANDS + CONVERT_COMMANDS + OTHER_COMMANDS:
        yield failing_allocations, (words,)
        yield failing_reads, (words,)
        yield failing_writes, (words,)
    for name, commands in INPUTS.items():
        checks = [['resources', 'check', name]] if name.endswith('.xml') else []
        for words in commands + checks:
            yield damaged_input, (name, words)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ('program', 'shim', 'resources', 'model'):
        parser.add_argument(name, type=os.path.abspath)
    parser.add_argument('--short', action='store_true', help='a sample of the cases')
    parser.add_argument('--every', type=int, default=1, metavar='N', help='every N-th case of each kind')
    parser.add_argument('--only', default='', metavar='WORD', help='jobs that name the word')
    tools = parser.parse_args()

    wanted = [(job, what) for job, what in jobs(tools) if tools.only in f'{job.__name__} {what}']
    cases, texts = 0, []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for findings in pool.map(lambda one: one[0](tools, *one[1]), wanted):
            cases += findings.cases
            texts += findings.texts
            for text in findings.texts[:20]:
                print(text, flush=True)
    print(f'{cases} cases, {len(texts)} findings')
    return 1 if texts or not cases else 0


if __name__ == '__main__':
    sys.exit(main())
