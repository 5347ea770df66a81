#!/usr/bin/env python3
"""materials.py VERSION ARCHIVE_FOLDER TAKEN: prints the bill of materials (SPDX 2.3) of a portable archive, and puts the
licence of every package that a file was taken from beside it. TAKEN has a line for each such file: its place in the
archive, a tabulator, its place where the package installed it.
"""
import hashlib, json, os, re, subprocess, sys, time

version, folder, taken = sys.argv[1:]


def ask(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def owner(path):
    # A package may still know a file under /lib that lies under /usr/lib.
    for name in (path, re.sub(r'^/usr', '', path)):
        found = subprocess.run(['dpkg', '-S', name], capture_output=True, text=True)
        if found.returncode == 0: return found.stdout.split(': ')[0].split(',')[0]
    sys.exit(f'materials.py: no package has {path}')


def spdx_id(kind, name):
    return f'SPDXRef-{kind}-' + re.sub(r'[^A-Za-z0-9.]', '-', name)


def debian_package(name):
    plain = name.split(':')[0]
    version, source, home = ask('dpkg-query', '-W', '-f=${Version}\n${source:Package}\n${Homepage}', name).split('\n')
    with open(f'/usr/share/doc/{plain}/copyright', encoding='utf-8') as f: licence = f.read()
    with open(f'{folder}/licences/{plain}.txt', 'w', encoding='utf-8') as f: f.write(licence)
    reference = 'LicenseRef-' + re.sub(r'[^A-Za-z0-9.]', '-', plain)
    return {
        'SPDXID': spdx_id('Package', plain), 'name': plain, 'versionInfo': version,
        'supplier': 'Organization: Debian', 'homepage': home or 'NOASSERTION', 'downloadLocation': 'NOASSERTION',
        'filesAnalyzed': False, 'licenseConcluded': 'NOASSERTION', 'licenseDeclared': reference, 'copyrightText': 'NOASSERTION',
        'externalRefs': [{'referenceCategory': 'PACKAGE-MANAGER', 'referenceType': 'purl',
                          'referenceLocator': f'pkg:deb/debian/{plain}@{version}?upstream={source}'}],
    }, {'licenseId': reference, 'name': f'As {plain} says', 'extractedText': licence}


def relation(one, kind, other):
    return {'spdxElementId': one, 'relationshipType': kind, 'relatedSpdxElement': other}


orvane = {
    'SPDXID': 'SPDXRef-Package-orvane', 'name': 'orvane', 'versionInfo': version, 'supplier': 'NOASSERTION',
    'downloadLocation': 'NOASSERTION', 'filesAnalyzed': False, 'licenseConcluded': 'NONE', 'licenseDeclared': 'NONE',
    'licenseComments': 'No licence has been chosen yet; all rights are reserved.', 'copyrightText': '2026 the founders of Orvane',
}
packages, licences, files, relations = [orvane], [], [], [relation('SPDXRef-DOCUMENT', 'DESCRIBES', orvane['SPDXID'])]
with open(taken, encoding='utf-8') as f: origins = dict(line.split('\t') for line in f.read().split('\n') if line)
owners = {place: owner(path) for place, path in origins.items()}
for name in sorted(set(owners.values())):
    package, licence = debian_package(name)
    packages.append(package)
    licences.append(licence)
    relations.append(relation(orvane['SPDXID'], 'DEPENDS_ON', package['SPDXID']))

for place, folders, names in os.walk(folder):
    folders.sort()
    for name in sorted(names):
        path = os.path.relpath(os.path.join(place, name), folder)
        with open(os.path.join(place, name), 'rb') as f: content = f.read()
        files.append({'SPDXID': spdx_id('File', path) + '-' + hashlib.sha1(path.encode()).hexdigest()[:8], 'fileName': './' + path,
                      'checksums': [{'algorithm': 'SHA1', 'checksumValue': hashlib.sha1(content).hexdigest()},
                                    {'algorithm': 'SHA256', 'checksumValue': hashlib.sha256(content).hexdigest()}],
                      'licenseConcluded': 'NOASSERTION', 'licenseInfoInFiles': ['NOASSERTION'],
                      'copyrightText': 'NOASSERTION'})
        package = spdx_id('Package', owners[path].split(':')[0]) if path in owners else orvane['SPDXID']
        relations.append(relation(package, 'CONTAINS', files[-1]['SPDXID']))

contents = json.dumps([packages, files], sort_keys=True).encode()
json.dump({
    'spdxVersion': 'SPDX-2.3', 'dataLicense': 'CC0-1.0', 'SPDXID': 'SPDXRef-DOCUMENT', 'name': f'orvane-{version}',
    'documentNamespace': f'https://orvane.example/spdx/{version}/{hashlib.sha256(contents).hexdigest()}',
    'creationInfo': {'created': time.strftime('%Y-%m-%dT%H:%M:%SZ', time.gmtime(int(os.environ['SOURCE_DATE_EPOCH']))),
                     'creators': [f'Tool: orvane-materials-{version}']},
    'packages': packages, 'files': files, 'hasExtractedLicensingInfos': licences, 'relationships': relations,
}, sys.stdout, ensure_ascii=False, indent=1)
print()
