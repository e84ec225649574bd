// Makes the report's scripts and its style sheet: node build.mjs FOLDER_WITH_NODE_MODULES OUTPUT
import { appendFileSync, existsSync, readFileSync, readdirSync } from 'node:fs';
import { createRequire } from 'node:module';
import { resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const [packages, output] = process.argv.slice(2).map((path) => resolve(path));
const require = createRequire(`${packages}/package.json`);
const esbuild = require('esbuild');
const source = fileURLToPath(new URL('src/', import.meta.url));

const { metafile } = await esbuild.build({
  entryPoints: ['index.js', 'file.js', 'report.css'].map((name) => source + name),
  outdir: output,
  nodePaths: [`${packages}/node_modules`],
  absWorkingDir: packages,
  bundle: true,
  metafile: true,
  minify: true,
  charset: 'ascii',
  target: 'es2021',
  format: 'iife',
  legalComments: 'none',
  logLevel: 'warning',
});

/** The notice of a package under whose licence its code is passed on. */
function notice(name) {
  const folder = `${packages}/node_modules/${name}`;
  const { version, license } = JSON.parse(readFileSync(`${folder}/package.json`, 'utf8'));
  const file = readdirSync(folder).find((entry) => /^licen[cs]e/i.test(entry));
  const text = file === undefined ? license : readFileSync(`${folder}/${file}`, 'utf8').trim();
  return `${name} ${version}\n\n${text.replaceAll('*/', '* /')}\n`;
}

for (const [path, { inputs }] of Object.entries(metafile.outputs)) {
  const names = Object.keys(inputs)
    .map((input) => /node_modules\/((?:@[^/]+\/)?[^/]+)\//.exec(input)?.[1]).filter(Boolean);
  const script = resolve(packages, path);
  if (names.length > 0 && existsSync(script)) {
    const notices = [...new Set(names)].sort().map(notice).join('\n');
    appendFileSync(script, `/*\nThis script holds code of these packages.\n\n${notices}*/\n`);
  }
}
