// A browser on the report that RECASTOR_REPORT names, and what it must never do.
import assert from 'node:assert/strict';
import { mkdirSync, readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { resolve } from 'node:path';
import { pathToFileURL } from 'node:url';

const packages = createRequire(`${resolve(process.env.RECASTOR_PACKAGES)}/package.json`);
const { chromium } = packages('playwright-core');
const checker = readFileSync(packages.resolve('axe-core/axe.min.js'), 'utf8');

const report = resolve(process.env.RECASTOR_REPORT);
const screenshots = resolve(process.env.RECASTOR_SCREENSHOTS);
mkdirSync(screenshots, { recursive: true });

const indexAddress = pathToFileURL(`${report}/index.html`).href;
const folderAddress = pathToFileURL(`${report}/`).href;

let browser;

export async function openBrowser() {
  browser = await chromium.launch({ executablePath: '/usr/bin/chromium', args: ['--no-sandbox'] });
}

export async function closeBrowser() {
  await browser?.close();
}

/**
 * Opens the first page and calls `use` with it. Afterwards nothing may have been said on the
 * console, and nothing loaded from anywhere but the report's folder.
 */
export async function withReport(use, { colorScheme = 'light' } = {}) {
  const context = await browser.newContext({
    colorScheme, viewport: { width: 1400, height: 900 },
  });
  const page = await context.newPage();
  const complaints = [];
  page.on('console', (message) => complaints.push(message.text()));
  page.on('pageerror', (error) => complaints.push(String(error)));
  page.on('dialog', (dialog) => complaints.push(`dialog: ${dialog.message()}`));
  page.on('request', (request) => {
    if (!request.url().startsWith(folderAddress)) {
      complaints.push(`request: ${request.url()}`);
    }
  });
  await page.goto(indexAddress);
  await use(page);
  assert.deepEqual(complaints, []);
  await context.close();
}

/** Goes to the page of the file whose path is given. */
export async function openFile(page, path) {
  await page.getByLabel('Search').fill(path);
  await page.getByRole('link', { name: path, exact: true }).click();
  await page.getByRole('heading', { level: 1, name: path }).waitFor();
}

/** Brings every part of the page into sight, so that all sketches are drawn. */
export async function seeAll(page) {
  for (const figure of await page.locator('figure').all()) {
    await figure.scrollIntoViewIfNeeded();
    await figure.locator('svg').first().waitFor();
  }
  await page.evaluate(() => window.scrollTo(0, 0));
}

export async function screenshot(page, name) {
  await page.screenshot({ path: `${screenshots}/${name}.png`, fullPage: true });
}

/** What a checker of accessibility finds wrong with the page, contrast of colours included. */
export async function barriers(page) {
  await page.evaluate(checker);
  const { violations } = await page.evaluate(() => window.axe.run({ preload: false }));
  return violations.flatMap(({ id, nodes }) => nodes.map(({ target }) => `${id}: ${target}`));
}
